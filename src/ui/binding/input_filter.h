// The one filter over the whole application that keeps input from the widgets while a procedure runs.
//
// What is typed or clicked meanwhile is held back and delivered once the procedure has ended; while it is at long work
// it is dropped, but for Esc, which is noted. A release goes where its press went; that of a dropped press is let
// through, since it does nothing, and a button that misses its own stays down.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <deque>
#include <memory>
#include <utility>

#include "ui/binding/gate.h"
#include "ui/binding/key_repeat.h"

namespace ui {

class InputFilter : public QObject {
 public:
  /// `gate` outlives it.
  explicit InputFilter(const Gate& gate);

  [[nodiscard]] bool escapePressed() const { return escapePressed_; }
  /// Long work begins: an Esc from before does not count.
  void forgetEscape() { escapePressed_ = false; }
  /// Delivers what was held back, as far as the gate is open; what is meant for a window behind a dialog waits for
  /// that.
  void release();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool isHeldEscape(const QEvent& event);
  void drop(QEvent& event);

  const Gate& gate_;
  std::deque<std::pair<QPointer<QObject>, std::unique_ptr<QEvent>>> held_;
  bool escapePressed_ = false;
  KeyRepeat escapeRepeat_;
  int releasingAt_ = -1;  // the gate's depth
};

}  // namespace ui
