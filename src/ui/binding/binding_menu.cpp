// The binding of menus.
#include "ui/binding/binding_menu.h"

#include <QApplication>
#include <QCursor>
#include <utility>

namespace ui {
namespace {

// At the pointer, or where the keys act: at the current row of a list, at the caret of a text.
QPoint placeOfPerson() {
  const QWidget* const focused = QApplication::focusWidget();
  if (focused == nullptr || QGuiApplication::mouseButtons().testFlag(Qt::RightButton)) return QCursor::pos();
  return focused->mapToGlobal(focused->inputMethodQuery(Qt::ImCursorRectangle).toRect().bottomLeft());
}

}  // namespace

// The menu itself counts as visible only while it is open, so what is enabled and visible is its entry in the bar.
MenuBinding::MenuBinding(base::Menu& model, QMenu& menu, const Context& context)
    : ControlBinding(model, *menu.menuAction(), context), model_(model), menu_(menu) {
  connect(&menu, &QMenu::aboutToHide, this, &MenuBinding::closed, Qt::QueuedConnection);
}

void MenuBinding::carryOwn() {
  if (!std::exchange(model_.wantsToOpen, false)) return;
  isOpen_ = true;
  menu_.popup(placeOfPerson());
}

void MenuBinding::closed() {
  if (!std::exchange(isOpen_, false)) return;
  userChange([this] { fire(base::Event::menuClosed); });
}

}  // namespace ui
