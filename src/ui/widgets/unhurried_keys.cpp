// Keys that come too soon.
#include "ui/widgets/unhurried_keys.h"

#include <QEvent>
#include <QWidget>

namespace ui {

UnhurriedKeys::UnhurriedKeys(QWidget& window) : QObject(&window), window_(window) {
  window.installEventFilter(this);
  for (QWidget* const each : window.findChildren<QWidget*>()) each->installEventFilter(this);
}

// What nobody in the window takes comes again, at its parent.
bool UnhurriedKeys::eventFilter(QObject* watched, QEvent* event) {
  constexpr qint64 kPause = 1000;  // milliseconds
  if (watched == &window_ && event->type() == QEvent::Show) sinceLastKey_.start();
  return watched == window_.focusWidget() && event->type() == QEvent::KeyPress && sinceLastKey_.restart() < kPause;
}

}  // namespace ui
