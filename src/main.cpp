// The program's entry: the terminal form when the first argument asks for it, else the windows.
#include <iostream>
#include <string>
#include <vector>

#include "app/lifecycle/version.h"
#include "terminal/price_command.h"
#include "ui/application.h"

namespace {

constexpr const char* kHelp =
    R"(Aufruf: tessik [--daten DIR]               öffnet das Programm
        tessik kalkuliere [Optionen]        rechnet ohne Bildschirm (tessik kalkuliere --help)

  --daten DIR   Verzeichnis mit den Datendateien Ostrowerk.ini, Tessik.ini und Tessik.pdb
  --help        diese Hilfe
  --version     die Version
)";

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const std::string first = arguments.empty() ? std::string() : arguments.front();
  if (first == "kalkuliere") {
    return terminal::runPriceCommand(std::span(arguments).subspan(1),
                                     {.in = std::cin, .out = std::cout, .error = std::cerr});
  }
  if (first == "--help") {
    std::cout << kHelp;
    return 0;
  }
  if (first == "--version") {
    std::cout << app::lifecycle::versionLine() << '\n';
    return 0;
  }
  return ui::runApplication(argc, argv, arguments);
}
