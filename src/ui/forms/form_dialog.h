// A dialog that is closed by one path: its button, Esc, Alt+F4 and the program all send it a close event, which may be
// refused.
#pragma once

#include <QCloseEvent>
#include <QDialog>

namespace ui {

class FormDialog : public QDialog {
 public:
  using QDialog::QDialog;

  /// The toolkit's Esc.
  void reject() override { close(); }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->accept();
    done(QDialog::Rejected);
  }
};

}  // namespace ui
