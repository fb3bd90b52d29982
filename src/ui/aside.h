// Work that runs beside the program on a copy of everything as it is at one moment: a process forked for it.
//
// The system copies memory only where one of the two writes to it, so that a document of any size is held still for
// some milliseconds at most, and typing goes on while its copy is written to disk.
#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>

namespace ui {

class Aside {
 public:
  Aside() = default;
  ~Aside() { await(); }
  Aside(const Aside&) = delete;
  Aside& operator=(const Aside&) = delete;

  /// False when the one before has not ended. An exception of `work` makes it fail.
  bool run(const std::function<void()>& work);
  /// How the last one ended; nothing while it runs.
  std::optional<bool> succeeded();
  void await();

 private:
  void take(int status);

  pid_t process_ = 0;
  bool succeeded_ = true;
};

}  // namespace ui
