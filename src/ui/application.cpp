// The program with its windows.
#include "ui/application.h"

#include <QApplication>
#include <QSessionManager>
#include <filesystem>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "lifecycle/program_directory.h"
#include "ui/appearance.h"
#include "ui/desktop.h"
#include "ui/end_signals.h"

namespace ui {
namespace {

constexpr int kExitNotStarted = 1;
constexpr int kExitWrongArgument = 2;

struct Options {
  std::optional<std::string> programDirectory;
  bool exitAfterStartUp = false;
  std::string file;  // to be opened
};

// Nothing when an argument is wrong, which has been told then.
std::optional<Options> parse(std::span<const char* const> arguments) {
  Options options;
  std::error_code ignored;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (argument == "--daten" && i + 1 < arguments.size()) {
      options.programDirectory = arguments[++i];
    } else if (argument == "--exit-after-startup") {
      options.exitAfterStartUp = true;
    } else if (!argument.starts_with('-') && options.file.empty()) {
      const std::filesystem::path file = std::filesystem::absolute(argument, ignored);
      options.file = file.empty() ? std::string(argument) : file.string();
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

// The desktop's session asks while the program may still write.
void endWithTheSession(Desktop& desktop) {
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &desktop,
                   [&desktop](QSessionManager& /*session*/) { desktop.end(Desktop::Manner::quietly); });
}

int run(const Options& options, const lifecycle::ProgramDirectory& directory) {
  Desktop desktop(directory);
  desktop.program().fileToOpen = options.file;
  desktop.whenEnded([] { QCoreApplication::exit(0); });
  if (options.exitAfterStartUp) desktop.mainForm().whenPainted([] { QCoreApplication::exit(0); });
  const EndSignals endSignals([&desktop] { desktop.end(Desktop::Manner::quietly); });
  endWithTheSession(desktop);
  if (desktop.load() == lifecycle::StartUp::ends) return kExitNotStarted;
  return QApplication::exec();
}

}  // namespace

int runApplication(int argc, char** argv) {
  const auto options = parse(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
  if (!options) return kExitWrongArgument;
  if (!hasDisplay()) {
    std::cerr << "tessik: Hier ist kein Bildschirm zu erreichen (weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt). Ohne "
                 "Bildschirm rechnet \"tessik kalkuliere --text TEXT\".\n";
    return kExitNotStarted;
  }
  const auto directory = lifecycle::programDirectory(lifecycle::directoryCandidates(options->programDirectory));
  if (const auto fault = lifecycle::faultOf(directory)) {
    std::cerr << "tessik: " << *fault << '\n';
    return kExitWrongArgument;
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Tessik"));
  QApplication::setDesktopFileName(QStringLiteral("tessik"));
  // The loading screen goes before the main window comes; only closing that one ends the program.
  QApplication::setQuitOnLastWindowClosed(false);
  setUpAppearance(application);
  return run(*options, directory);
}

}  // namespace ui
