// The table of forms.
#include "ui/forms/form_table.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <array>

#include "base/failure.h"
#include "ui/forms/container_form.h"
#include "ui/forms/form_dialog.h"
#include "ui/forms/letter_size.h"
#include "ui/forms/main_form.h"
#include "ui/forms/price_columns.h"
#include "ui/widgets/unhurried_keys.h"
#include "ui_backup.h"
#include "ui_calculator.h"
#include "ui_csv_import.h"
#include "ui_loading.h"
#include "ui_offer.h"
#include "ui_options.h"
#include "ui_picker.h"
#include "ui_planner.h"
#include "ui_price_editor.h"
#include "ui_reminder.h"
#include "ui_roll_goods.h"
#include "ui_sort.h"
#include "ui_spelling.h"
#include "ui_wait.h"

namespace ui {
namespace {

template <typename Drawn, int columns, int lines>
QWidget* dialog(QWidget* parent) {
  auto* const form = new FormDialog(parent);
  Drawn().setupUi(form);
  form->resize(inLetters(*form, columns, lines));
  return form;
}

QWidget* mainWindow(QWidget* /*parent*/) { return new MainForm; }

// In the middle of the screen; the main window, which it belongs to, has no place yet.
QWidget* loadingScreen(QWidget* parent) {
  auto* const screen = new FormDialog(parent, Qt::SplashScreen);
  Ui::LoadingForm().setupUi(screen);
  screen->setFixedSize(inLetters(*screen, 60, 12).expandedTo(screen->sizeHint()));
  screen->move(QGuiApplication::primaryScreen()->availableGeometry().center() - screen->rect().center());
  return screen;
}

// Beside the main window and above it; what runs behind it is not to be closed.
QWidget* waitWindow(QWidget* parent) {
  auto* const window = new FormDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  Ui::WaitForm().setupUi(window);
  window->setFixedSize(inLetters(*window, 60, 6).expandedTo(window->sizeHint()));
  return window;
}

// A window of its own beside the main window, which may stand in front of it.
QWidget* container(QWidget* /*parent*/) { return new ContainerForm; }

// Belongs to no other window, so that it lies in front of the main window only as long as the setting or the person
// says.
QWidget* calculator(QWidget* /*parent*/) {
  constexpr double kKeyType = 1.3;  // times the desktop's
  auto* const window = new FormDialog(nullptr, Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  Ui::CalculatorForm drawn;
  drawn.setupUi(window);
  QFont type = window->font();
  type.setPointSizeF(type.pointSizeF() * kKeyType);
  drawn.fixTasten->setFont(type);
  window->resize(inLetters(*window, 46, 24));
  return window;
}

QWidget* csvImport(QWidget* parent) {
  auto* const form = new FormDialog(parent);
  Ui::CsvImportForm drawn;
  drawn.setupUi(form);
  joinColumns(*drawn.List1, *drawn.List2);
  form->resize(inLetters(*form, 96, 36));
  return form;
}

// A window of its own beside the main window, as long as one works with it.
QWidget* planner(QWidget* /*parent*/) {
  auto* const window = new FormDialog(nullptr, Qt::Window);
  Ui::PlannerForm().setupUi(window);
  window->resize(inLettersOnScreen(*window, 92, 32));
  return window;
}

// Belongs to no window, for whichever is in front or minimised, it is to be seen.
QWidget* reminder(QWidget* /*parent*/) {
  auto* const window = new FormDialog(nullptr);
  Ui::ReminderForm().setupUi(window);
  new UnhurriedKeys(*window);
  window->resize(inLetters(*window, 64, 10));
  return window;
}

constexpr std::array kForms = {
    Form{"frmMain", mainWindow},
    Form{"frmLoad", loadingScreen, Appears::whenItTakesLonger},
    Form{"frmWait", waitWindow, Appears::whenItTakesLonger},
    Form{"frmAuswahlAR", dialog<Ui::PickerForm, 64, 18>},
    Form{"frmContainer", container},
    Form{"frmRechtschreibung", dialog<Ui::SpellingForm, 70, 18>},
    Form{"frmSort", dialog<Ui::SortForm, 72, 16>},
    Form{"frmOptions", dialog<Ui::OptionsForm, 126, 34>},
    Form{"frmCalc", calculator},
    Form{"frmBackup", dialog<Ui::BackupForm, 120, 30>},
    Form{"frmAngebot", dialog<Ui::OfferForm, 96, 36>},
    Form{"frmData", dialog<Ui::PriceEditorForm, 84, 36>},
    Form{"frmTermine", planner},
    Form{"frmMsgBox", reminder},
    Form{"frmCsvImport", csvImport},
    Form{"frmVoll", dialog<Ui::RollGoodsForm, 128, 34>},
};

}  // namespace

const Form& formOf(std::string_view window) {
  const auto* const form =
      std::find_if(kForms.begin(), kForms.end(), [window](const Form& each) { return each.window == window; });
  if (form == kForms.end()) throw base::Failure(base::ErrorNumber::internal);
  return *form;
}

}  // namespace ui
