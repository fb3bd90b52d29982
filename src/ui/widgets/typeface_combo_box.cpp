// The box of typefaces.
#include "ui/widgets/typeface_combo_box.h"

#include <QFontInfo>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

#include "ui/appearance.h"

namespace ui {

TypefaceComboBox::TypefaceComboBox(QWidget* parent) : AutoCompleteComboBox(parent) {
  connect(lineEdit(), &QLineEdit::textChanged, this, &TypefaceComboBox::showWhetherInstalled);
}

bool TypefaceComboBox::isInstalled(const QString& family) const {
  if (family.isEmpty() || findText(family, Qt::MatchFixedString) >= 0) return true;
  for (int row = 0; row < count(); ++row) {
    if (isSameTypeface(itemText(row), family)) return true;
  }
  return false;
}

// While a name is being typed it is none yet.
void TypefaceComboBox::showWhetherInstalled() {
  QFont font = lineEdit()->font();
  font.setItalic(!hasFocus() && !isInstalled(currentText()));
  if (font != lineEdit()->font()) lineEdit()->setFont(font);
}

// What is drawn instead is looked up when it is asked for: that takes its time.
bool TypefaceComboBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || isInstalled(currentText())) return AutoCompleteComboBox::event(event);
  const QString drawn = QFontInfo(QFont(currentText())).family();
  const QString tip = QStringLiteral("„%1“ ist nicht installiert; gezeichnet wird mit „%2“.").arg(currentText(), drawn);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shownAsPlainText(tip), this);
  return true;
}

}  // namespace ui
