// A combo box to type into that completes the text to one of its items.
#include "ui/widgets/auto_complete_combo_box.h"

#include <QCompleter>
#include <QLineEdit>

namespace ui {
namespace {

constexpr int kOfferedItems = 12;

}  // namespace

AutoCompleteComboBox::AutoCompleteComboBox(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  completer()->setCompletionMode(QCompleter::PopupCompletion);
  completer()->setCaseSensitivity(Qt::CaseInsensitive);
  completer()->setMaxVisibleItems(kOfferedItems);
  connect(lineEdit(), &QLineEdit::editingFinished, this, &AutoCompleteComboBox::settle);
}

void AutoCompleteComboBox::focusInEvent(QFocusEvent* event) {
  before_ = currentText();
  QComboBox::focusInEvent(event);
}

void AutoCompleteComboBox::settle() {
  if (currentText() == before_) return;
  const int typed = findText(currentText(), Qt::MatchFixedString);
  if (typed < 0) {
    setEditText(before_);
    return;
  }
  setCurrentIndex(typed);
  setEditText(itemText(typed));
  before_ = itemText(typed);
  emit activated(typed);
}

}  // namespace ui
