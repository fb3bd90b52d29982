// The program with its windows.
#include "ui/application.h"

#include <QApplication>
#include <QDialog>
#include <QLibraryInfo>
#include <QTranslator>
#include <iostream>
#include <optional>

#include "app/lifecycle/program.h"
#include "app/lifecycle/program_directory.h"
#include "app/lifecycle/start_up.h"
#include "app/settings/pricing_settings.h"
#include "ui/main_form.h"
#include "ui/qt_platform.h"
#include "ui/utf8.h"
#include "ui_picker.h"

namespace ui {
namespace {

using app::lifecycle::Program;

constexpr int kExitWrongArgument = 2;

struct Options {
  std::optional<std::string> programDirectory;
};

// Nothing when an argument is wrong, which has been told then.
std::optional<Options> parse(const QStringList& arguments) {
  Options options;
  for (qsizetype i = 1; i < arguments.size(); ++i) {
    if (arguments[i] == QLatin1String("--daten") && i + 1 < arguments.size()) {
      options.programDirectory = toUtf8(arguments[++i]);
    } else {
      std::cerr << "tessik: Unbekanntes oder unvollständiges Argument \"" << toUtf8(arguments[i])
                << "\" (tessik --help zeigt die Optionen)\n";
      return std::nullopt;
    }
  }
  return options;
}

// The buttons of message boxes and the context menus of the toolkit are German with this.
void speakGerman(QApplication& application) {
  auto* const translator = new QTranslator(&application);
  if (translator->load(QLocale(QLocale::German), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(translator);
  }
}

ShownWindow buildPicker(Program& program, QWidget& parent, Gate& gate, Sync& sync) {
  auto* const dialog = new QDialog(&parent);
  Ui::PickerForm drawn;
  drawn.setupUi(dialog);
  return {.dialog = dialog, .bindings = &bind(program.picker, *dialog, program.wiring, gate, sync)};
}

// The program and everything it needs on the screen, in the order in which one outlives the other.
class Desktop {
 public:
  explicit Desktop(const Options& options) {
    gate_.setBeep([this] { platform_.beep(); });
    gate_.setLastResort([this](const std::exception& fault) {
      platform_.messageBox({.text = fault.what(), .title = "Fehler", .icon = base::MessageIcon::stop});
    });
    program_.paths.programDirectory =
        app::lifecycle::programDirectory(app::lifecycle::directoryCandidates(options.programDirectory));
    app::lifecycle::wire(program_, parts_);
    platform_.offerWindow(program_.picker.name, [this] { return buildPicker(program_, form_, gate_, sync_); });
    BoundWindow& bound = form_.bindTo(program_.main, program_.wiring, gate_, sync_);
    sync_.open(bound);
    gate_.userEvent([this] {
      app::errors::reporting(reporter_, "MAIN-frmLoad", [this] {
        app::lifecycle::loadTypefaces(parts_);
        program_.settings = app::settings::readForPricing(program_.paths);
        app::lifecycle::loadLists(parts_);
      });
    });
    form_.show();
  }

 private:
  Gate gate_;
  Sync sync_{gate_};
  QtPlatform platform_{gate_, sync_};
  app::errors::Reporter reporter_{platform_};
  Program program_;
  MainForm form_;
  app::commands::MainParts parts_ = app::lifecycle::mainParts(program_, platform_, form_.document(), reporter_);
};

}  // namespace

int runApplication(int argc, char** argv, const std::vector<std::string>& /*arguments*/) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Tessik"));
  QApplication::setDesktopFileName(QStringLiteral("tessik"));
  speakGerman(application);
  const auto options = parse(QApplication::arguments());
  if (!options) return kExitWrongArgument;
  const Desktop desktop(*options);
  return QApplication::exec();
}

}  // namespace ui
