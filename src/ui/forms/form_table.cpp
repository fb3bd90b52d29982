// The table of forms.
#include "ui/forms/form_table.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <array>

#include "base/failure.h"
#include "ui/forms/form_dialog.h"
#include "ui/forms/main_form.h"
#include "ui_loading.h"
#include "ui_picker.h"

namespace ui {
namespace {

template <typename Drawn>
QWidget* dialog(QWidget* parent) {
  auto* const form = new FormDialog(parent);
  Drawn().setupUi(form);
  return form;
}

QWidget* mainWindow(QWidget* /*parent*/) { return new MainForm; }

// In the middle of the screen; the main window, which it belongs to, has no place yet.
QWidget* loadingScreen(QWidget* parent) {
  auto* const screen = new FormDialog(parent, Qt::SplashScreen);
  Ui::LoadingForm().setupUi(screen);
  screen->move(QGuiApplication::primaryScreen()->availableGeometry().center() - screen->rect().center());
  return screen;
}

constexpr std::array kForms = {
    Form{"frmMain", mainWindow},
    Form{"frmLoad", loadingScreen, Appears::whenItTakesLonger},
    Form{"frmAuswahlAR", dialog<Ui::PickerForm>},
};

}  // namespace

const Form& formOf(std::string_view window) {
  const auto* const form =
      std::find_if(kForms.begin(), kForms.end(), [window](const Form& each) { return each.window == window; });
  if (form == kForms.end()) throw base::Failure(base::ErrorNumber::internal);
  return *form;
}

}  // namespace ui
