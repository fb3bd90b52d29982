// Tells the repeats of a key held down from keys pressed again.
#pragma once

#include <QKeyEvent>

namespace ui {

/// A desktop that does not mark repeated keys lets them go and presses them in the same moment.
class KeyRepeat {
 public:
  void released(const QKeyEvent& key) { releasedKey_ = key.key(), releasedAt_ = key.timestamp(); }
  [[nodiscard]] bool isRepeat(const QKeyEvent& key) const {
    const bool isSameMoment = key.timestamp() != 0 && key.timestamp() == releasedAt_;
    return key.isAutoRepeat() || (isSameMoment && key.key() == releasedKey_);
  }

 private:
  int releasedKey_ = 0;
  quint64 releasedAt_ = 0;
};

}  // namespace ui
