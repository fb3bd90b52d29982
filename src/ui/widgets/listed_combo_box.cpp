// Painting of a combo box whose list may be empty.
#include "ui/widgets/listed_combo_box.h"

#include <QPaintEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace ui {

void ListedComboBox::paintEvent(QPaintEvent* event) {
  if (count() > 0) {
    QComboBox::paintEvent(event);
    return;
  }
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = emptyText_;
  option.palette.setBrush(QPalette::ButtonText, palette().brush(QPalette::PlaceholderText));
  QStylePainter painter(this);
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

}  // namespace ui
