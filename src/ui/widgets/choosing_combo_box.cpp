// A combo box that tells when the user is done with it.
#include "ui/widgets/choosing_combo_box.h"

#include <QScopedValueRollback>

namespace ui {

ChoosingComboBox::ChoosingComboBox(QWidget* parent) : QComboBox(parent) {
  // Without the focus the box settles a text that was typed, which is no choice.
  connect(this, &QComboBox::activated, this, [this] {
    if (!isStepping_ && hasFocus()) emit chosen();
  });
}

void ChoosingComboBox::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback stepping(isStepping_, true);
  QComboBox::keyPressEvent(event);
}

void ChoosingComboBox::wheelEvent(QWheelEvent* event) {
  const QScopedValueRollback stepping(isStepping_, true);
  QComboBox::wheelEvent(event);
}

}  // namespace ui
