// A combo box to type into that completes the text to one of its items and never keeps a text that is none.
#pragma once

#include <QComboBox>
#include <QString>

namespace ui {

class AutoCompleteComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit AutoCompleteComboBox(QWidget* parent = nullptr);

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  /// Enter or leaving: an item whose text was typed, in any case, is chosen; any other text gives way to what stood
  /// there before.
  void settle();

  QString before_;
};

}  // namespace ui
