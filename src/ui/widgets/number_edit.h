// A line edit for a number: wide enough for nine digits and a decimal point, in whatever type the desktop has.
#pragma once

#include <QLineEdit>

namespace ui {

class NumberEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit NumberEdit(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  /// An access key selects the whole text, also where part of it was selected before.
  void focusInEvent(QFocusEvent* event) override;
  /// The menu bar borrows the focus: what is selected stays, for its commands shall act on it.
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace ui
