// A combo box to type into that completes the text to one of its items and never keeps a text that is none.
//
// The first letters suffice: the best completion is highlighted, Enter and Tab take it. Leaving in any other way takes
// a text that is an item, in any case of letters; any other gives way to what stood there before.
#pragma once

#include <QString>

#include "ui/widgets/choosing_combo_box.h"

namespace ui {

class AutoCompleteComboBox : public ChoosingComboBox {
  Q_OBJECT

 public:
  explicit AutoCompleteComboBox(QWidget* parent = nullptr);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Take { completion, wholeItem };

  void settle(Take take);
  void choose(int index);
  /// The row that the text stands for, -1 when it stands for none.
  [[nodiscard]] int rowOf(const QString& text, Take take) const;
  /// A name longer than the box shows how it begins.
  void showStart();
  void highlightBest();
  void widenLists();

  QString before_;
};

}  // namespace ui
