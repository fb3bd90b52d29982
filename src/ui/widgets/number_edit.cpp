// Measuring of a line edit for numbers.
#include "ui/widgets/number_edit.h"

#include <QFocusEvent>
#include <QStyleOptionFrame>

namespace ui {
namespace {

constexpr int kDigits = 9;
constexpr int kAroundText = 6;  // the toolkit's own margins beside the text, and the caret

}  // namespace

NumberEdit::NumberEdit(QWidget* parent) : QLineEdit(parent) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize NumberEdit::sizeHint() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QString widest = QString(kDigits, QLatin1Char('0')) + QLatin1Char('.');
  const QSize text(fontMetrics().horizontalAdvance(widest) + kAroundText, fontMetrics().height());
  const int width = style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, this).width();
  return {width, QLineEdit::sizeHint().height()};
}

void NumberEdit::focusOutEvent(QFocusEvent* event) {
  const bool isLent = event->reason() == Qt::MenuBarFocusReason;
  QFocusEvent leaving(QEvent::FocusOut, isLent ? Qt::PopupFocusReason : event->reason());
  QLineEdit::focusOutEvent(&leaving);
}

void NumberEdit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() == Qt::ShortcutFocusReason) selectAll();
}

}  // namespace ui
