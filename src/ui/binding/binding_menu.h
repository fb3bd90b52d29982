// The binding of menus that open because the logic asks for it, beside standing in a menu bar.
#pragma once

#include <QMenu>

#include "ui/binding/binding.h"

namespace ui {

/// `menuClosed` is fired once such a menu is gone, however it was left.
class MenuBinding : public ControlBinding {
 public:
  MenuBinding(base::Menu& model, QMenu& menu, const Context& context);

 private:
  void carryOwn() override;
  void closed();

  base::Menu& model_;
  QMenu& menu_;
  bool isOpen_ = false;  // because it was asked to
};

}  // namespace ui
