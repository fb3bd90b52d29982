// The program with its windows.
#include "ui/application.h"

#include <QApplication>
#include <QDialog>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "lifecycle/program.h"
#include "lifecycle/program_directory.h"
#include "lifecycle/start_up.h"
#include "lifecycle/wire.h"
#include "ui/appearance.h"
#include "ui/forms/dialogs.h"
#include "ui/forms/main_form.h"
#include "ui/qt_platform.h"

namespace ui {
namespace {

using lifecycle::Program;
using lifecycle::StartUp;

constexpr int kExitNotStarted = 1;
constexpr int kExitWrongArgument = 2;

struct Options {
  std::optional<std::string> programDirectory;
  bool exitAfterStartUp = false;
};

// Nothing when an argument is wrong, which has been told then.
std::optional<Options> parse(std::span<const char* const> arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (argument == "--daten" && i + 1 < arguments.size()) {
      options.programDirectory = arguments[++i];
    } else if (argument == "--exit-after-startup") {
      options.exitAfterStartUp = true;
    } else {
      std::cerr << "tessik: Unbekanntes oder unvollständiges Argument \"" << argument
                << "\" (tessik --help zeigt die Optionen)\n";
      return std::nullopt;
    }
  }
  return options;
}

bool hasDisplay() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
         !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

// The program and everything it needs on the screen, in the order in which one outlives the other.
class Desktop {
 public:
  explicit Desktop(const Options& options) {
    gate_.setBeep([this] { platform_.beep(); });
    gate_.setLastResort([this](const std::exception& fault) {
      reporter_.report(base::Failure(base::ErrorNumber::internal, fault.what()));
    });
    const auto candidates = lifecycle::directoryCandidates(options.programDirectory);
    const auto directory = lifecycle::programDirectory(candidates);
    program_.paths.programDirectory = directory.path;
    program_.createsDirectory = directory.isUsersOwn;
    program_.information.directory = directory.path;
    lifecycle::wire(program_, parts_);
    offerWindows();
    form_.restoreLayout();
    if (options.exitAfterStartUp) form_.whenPainted([] { QCoreApplication::quit(); });
    sync_.open(bound_);
  }

  /// The load handler; what follows it runs in the event loop.
  StartUp load() {
    StartUp result = StartUp::ends;
    gate_.userEvent([&] { result = lifecycle::load(program_, parts_); });
    return result;
  }

 private:
  void offerWindows() {
    platform_.offerWindow(program_.main.name, [this] { return ShownWindow{&form_, &bound_}; });
    platform_.offerWindow(
        program_.loading.name, [this] { return bound(program_.loading, *makeLoadingScreen(&form_)); },
        QtPlatform::Appears::whenItTakesLonger);
    platform_.offerWindow(program_.picker.name, [this] { return bound(program_.picker, *makePicker(&form_)); });
  }

  template <typename Model>
  ShownWindow bound(Model& model, QDialog& dialog) {
    return {.widget = &dialog, .bindings = &bind(model, dialog, program_.wiring, gate_, sync_)};
  }

  Gate gate_;
  Sync sync_{gate_};
  QtPlatform platform_{gate_, sync_};
  Program program_;
  errors::Reporter reporter_{platform_, program_.information};
  MainForm form_;
  commands::MainParts parts_ = lifecycle::mainParts(program_, platform_, form_.document(), reporter_);
  BoundWindow& bound_ = form_.bindTo(program_.main, program_.wiring, gate_, sync_);
};

}  // namespace

int runApplication(int argc, char** argv) {
  const auto options = parse(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
  if (!options) return kExitWrongArgument;
  if (!hasDisplay()) {
    std::cerr << "tessik: Hier ist kein Bildschirm zu erreichen (weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt). Ohne "
                 "Bildschirm rechnet \"tessik kalkuliere --text TEXT\".\n";
    return kExitNotStarted;
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Tessik"));
  QApplication::setDesktopFileName(QStringLiteral("tessik"));
  // The loading screen goes before the main window comes; only closing that one ends the program.
  QApplication::setQuitOnLastWindowClosed(false);
  setUpAppearance(application);
  Desktop desktop(*options);
  if (desktop.load() == StartUp::ends) return kExitNotStarted;
  return QApplication::exec();
}

}  // namespace ui
