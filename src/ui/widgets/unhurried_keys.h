// Keeps the keys of somebody who is typing away from a window that comes by itself.
#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

namespace ui {

/// A blank or Enter meant for a text would press the button of a window before it was seen. So a key counts in it only
/// after a second without one; the mouse counts at once.
class UnhurriedKeys : public QObject {
 public:
  /// Watches `window` and what is in it, and belongs to it.
  explicit UnhurriedKeys(QWidget& window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const QWidget& window_;
  QElapsedTimer sinceLastKey_;
};

}  // namespace ui
