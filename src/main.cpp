// The program's entry: the terminal form when the first argument asks for it, else the windows.
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/version.h"
#include "lifecycle/program_directory.h"
#include "terminal/price_command.h"
#include "ui/application.h"

namespace {

constexpr const char* kHelp =
    R"(Aufruf: tessik [--daten DIR] [DATEI]       öffnet das Programm, mit dem Dokument DATEI
        tessik kalkuliere [Optionen]        rechnet ohne Bildschirm (tessik kalkuliere --help)

  --daten DIR            Verzeichnis mit den Datendateien Ostrowerk.ini, Tessik.ini und Tessik.pdb
  --exit-after-startup   endet, sobald das Hauptfenster vollständig zu sehen ist
  --help                 diese Hilfe
  --version              die Version
)";

bool asksFor(const std::vector<std::string>& arguments, std::string_view option) {
  return std::find(arguments.begin(), arguments.end(), option) != arguments.end();
}

int print(std::string_view text) {
  if (std::cout << text << std::flush) return EXIT_SUCCESS;
  std::cerr << "tessik: Die Ausgabe konnte nicht geschrieben werden.\n";
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  lifecycle::ensureHome();
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (!arguments.empty() && arguments.front() == "kalkuliere") {
    // Without the C library's buffers a failing read of the standard input is told from its end.
    std::ios::sync_with_stdio(false);
    return terminal::runPriceCommand(std::span(arguments).subspan(1),
                                     {.in = std::cin, .out = std::cout, .error = std::cerr});
  }
  if (asksFor(arguments, "--help")) return print(kHelp);
  if (asksFor(arguments, "--version")) return print(base::versionLine() + "\n");
  return ui::runApplication(argc, argv);
}
