// The text container on the screen.
#include "ui/forms/container_form.h"

#include <QHideEvent>

#include "qtcore/user_settings.h"
#include "ui/forms/edit_commands.h"
#include "ui/forms/letter_size.h"
#include "ui/forms/view_commands.h"
#include "ui_container.h"

namespace ui {
namespace {

constexpr const char* kGeometryKey = "Container";
constexpr View kView{.firstZoom = 125, .storeKey = "ContainerAnsicht"};

}  // namespace

ContainerForm::ContainerForm() {
  Ui::ContainerForm drawn;
  drawn.setupUi(this);
  drawn.fixStatus->addPermanentWidget(drawn.fixAnsichtsgröße);
  offerEditing(*drawn.rtfTextC, {.undo = drawn.mnuUndo,
                                 .redo = drawn.mnuRedo,
                                 .cut = drawn.mnuCut,
                                 .copy = drawn.mnuCopy,
                                 .paste = drawn.mnuPaste,
                                 .pastePlain = drawn.mnuPastePlain,
                                 .clear = drawn.mnuClear,
                                 .markAll = drawn.mnuMarkAll});
  view_ = new ViewCommands(*this, *drawn.rtfTextC,
                           {.larger = drawn.fixGrößer,
                            .smaller = drawn.fixKleiner,
                            .first = drawn.fixStandardgröße,
                            .shown = drawn.fixAnsichtsgröße},
                           kView);
  view_->restore();
  resize(inLettersOnScreen(*this, 104, 36));
  if (const auto geometry = qtcore::storedBytes(kGeometryKey)) restoreGeometry(*geometry);
  drawn.rtfTextC->setFocus();
}

// Hidden by the desktop it is only minimised.
void ContainerForm::hideEvent(QHideEvent* event) {
  QMainWindow::hideEvent(event);
  if (event->spontaneous()) return;
  qtcore::storeBytes(kGeometryKey, saveGeometry());
  view_->save();
}

}  // namespace ui
