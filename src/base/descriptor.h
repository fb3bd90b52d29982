// An open file of the operating system, closed when its owner goes.
#pragma once

#include <unistd.h>

namespace base {

class Descriptor {
 public:
  /// Takes over what open() returned, which may be a failure.
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (isOpen()) ::close(number_);
  }

  [[nodiscard]] bool isOpen() const { return number_ >= 0; }
  [[nodiscard]] int number() const { return number_; }

 private:
  int number_;
};

}  // namespace base
