// The sync pass: carries what the logic has written into the widgets of the windows that are open.
//
// It follows each event and precedes whatever shows something or lets events through. A widget is touched only when
// its model has changed, so the caret stays where the user put it, and a pass in which nothing has changed is cheap.
#pragma once

#include <vector>

#include "ui/binding/gate.h"

namespace ui {

/// Something that brings its model's changes to the screen.
class Carrier {
 public:
  virtual ~Carrier() = default;
  virtual void carry() = 0;
};

class Sync {
 public:
  /// Makes the pass follow the events of `gate`, which must outlive it.
  explicit Sync(Gate& gate);
  ~Sync() { gate_.setAfterEvent(nullptr); }
  Sync(const Sync&) = delete;
  Sync& operator=(const Sync&) = delete;

  /// Carries `window` now and in every pass from now on. To be called before the window is shown.
  void open(Carrier& window);
  void close(const Carrier& window) { std::erase(open_, &window); }

  void pass();

 private:
  Gate& gate_;
  std::vector<Carrier*> open_;
};

}  // namespace ui
