// A dialog that is closed by one path: its button, Esc, Alt+F4 and the program all send it a close event, which may be
// refused.
#pragma once

#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace ui {

class FormDialog : public QDialog {
 public:
  using QDialog::QDialog;

  /// The toolkit's Esc.
  void reject() override { close(); }

 protected:
  // Enter is for the button that has the keys; the toolkit would leave it to the one that stands out.
  void keyPressEvent(QKeyEvent* event) override {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* const button = isEnter ? qobject_cast<QPushButton*>(focusWidget()) : nullptr;
    if (button == nullptr) return QDialog::keyPressEvent(event);
    if (!event->isAutoRepeat()) button->click();
  }
  void closeEvent(QCloseEvent* event) override {
    event->accept();
    done(QDialog::Rejected);
  }
};

}  // namespace ui
