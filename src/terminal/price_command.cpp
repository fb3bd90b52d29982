// "tessik kalkuliere".
#include "terminal/price_command.h"

#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>
#include <fstream>
#include <istream>
#include <memory>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/files.h"
#include "base/number.h"
#include "base/text.h"
#include "base/version.h"
#include "calc/adjustments.h"
#include "calc/price_database.h"
#include "lifecycle/assembly.h"
#include "lifecycle/program_directory.h"
#include "qtcore/locale.h"
#include "settings/settings_files.h"
#include "terminal/arguments.h"
#include "terminal/output.h"
#include "terminal/terminal_platform.h"

namespace terminal {
namespace {

using base::Event;
using commands::MainParts;

// UTF-8 with or without its mark, UTF-16 with its mark, or else code page 1252.
std::string decoded(std::string bytes) {
  if (qtcore::isMarkedUtf16(bytes)) return qtcore::fromMarkedUtf16(bytes);
  if (bytes.starts_with(base::kUtf8Mark)) bytes.erase(0, base::kUtf8Mark.size());
  return base::isValidUtf8(bytes) ? bytes : base::fromCodePage1252(bytes);
}

std::string readAll(std::istream& stream, const std::string& name) {
  std::string bytes;
  std::array<char, 65536> buffer{};
  while (stream.read(buffer.data(), buffer.size()) || stream.gcount() > 0) {
    bytes.append(buffer.data(), static_cast<std::size_t>(stream.gcount()));
  }
  if (stream.bad() || !stream.eof()) throw base::fileFailure(base::ErrorNumber::deviceIo, name);
  return bytes;
}

std::string readText(const std::string& file, const Streams& streams) {
  if (file == "-") return readAll(streams.in, "Standardeingabe");
  if (!std::filesystem::exists(file)) throw base::fileFailure(base::ErrorNumber::fileNotFound, file);
  if (std::filesystem::is_directory(file)) throw base::fileFailure(base::ErrorNumber::pathFileAccess, file);
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw base::fileFailure(base::ErrorNumber::permissionDenied, file);
  return readAll(stream, file);
}

std::string lettering(const PriceRequest& request, const Streams& streams) {
  if (!request.file) return request.text.value_or("");
  std::string text = decoded(readText(*request.file, streams));
  if (std::string_view(text).substr(std::min(text.find_first_not_of(" \t\r\n"), text.size())).starts_with("{\\rtf")) {
    throw base::Failure(base::ErrorNumber::invalidCall,
                        "Nur reine Textdateien werden gelesen, kein RTF: " + *request.file);
  }
  return text;
}

lifecycle::ProgramDirectory directory(const PriceRequest& request) {
  if (request.programDirectory && !std::filesystem::is_directory(*request.programDirectory)) {
    throw WrongArgument("Das Verzeichnis \"" + *request.programDirectory + "\" gibt es nicht.");
  }
  return lifecycle::programDirectory(lifecycle::directoryCandidates(request.programDirectory));
}

// What is wrong with a stored count is told and passed over, as in the window; any other problem ends.
void readSettings(lifecycle::Program& program, const PriceRequest& request, std::ostream& notes) {
  const settings::ReadReport report =
      settings::readSettings(program.paths, program.settings, settings::MissingNumber::keepsDefault);
  for (const settings::ReadProblem& problem : report.problems) {
    if (problem.number != base::ErrorNumber::indexOutOfRange) throw base::Failure(problem.number, problem.text);
    notes << "tessik: Hinweis: " << problem.text << '\n';
  }
  settings::Rates& rates = program.settings.rates;
  rates.vatPercent = request.vatPercent.value_or(rates.vatPercent);
  rates.unit = request.unit.value_or(rates.unit);
  rates.countBlanks = request.countBlanks.value_or(rates.countBlanks);
}

void loadLists(const MainParts& parts) {
  calc::fillAdjustments(parts.window.cboAufpreis, parts.settings.adjustments.surcharges);
  calc::fillAdjustments(parts.window.cboRabatt, parts.settings.adjustments.discounts);
  base::tagged("MAIN-tmrLoad", [&] { calc::LoadPriceDatabase(parts.window, parts.paths.priceDatabase()); });
}

std::string trimmed(const std::string& text) {
  const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
  return text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

int heightIndex(const base::ItemList& heights, const PriceRequest& request, const base::Platform& platform) {
  if (request.heightIndex) {
    if (heights.holds(*request.heightIndex)) return *request.heightIndex;
    throw WrongArgument("Die Preisliste hat keine Buchstabenhöhe Nr. " + std::to_string(*request.heightIndex) + ".");
  }
  if (!request.height) return heights.empty() ? -1 : 0;
  const auto found = std::find(heights.begin(), heights.end(), platform.composed(trimmed(*request.height)));
  if (found != heights.end()) return static_cast<int>(found - heights.begin());
  throw WrongArgument("Die Preisliste hat keine Buchstabenhöhe \"" + *request.height + "\".");
}

// An entry that the list does not hold joins it for this one calculation, as a person would have typed it.
int entryIndex(base::ItemList& entries, const std::optional<std::string>& text) {
  if (!text) return 0;
  const auto found = std::find(entries.begin(), entries.end(), *text);
  if (found != entries.end()) return static_cast<int>(found - entries.begin());
  entries.add(base::withDecimalPoint(*text));
  return entries.size() - 1;
}

base::Currency pieceAddition(const PriceRequest& request) {
  if (!request.pieceAddition) return {};
  if (!base::isTypedNumber(*request.pieceAddition)) {
    throw WrongArgument("--zusatz verlangt einen Betrag, nicht \"" + *request.pieceAddition + "\".");
  }
  return base::Currency::fromDouble(base::typedAmount(*request.pieceAddition));
}

// Everything is set before the first calculation, so that no intermediate price can fail.
void setInputs(const MainParts& parts, const PriceRequest& request) {
  frame::MainWindow& window = parts.window;
  if (request.quantity) window.txtStück.text = base::withDecimalPoint(*request.quantity);
  parts.results.pieceAddition = pieceAddition(request);
  window.cboBuchstabenhöhe.select(heightIndex(window.cboBuchstabenhöhe.items, request, parts.platform));
  window.cboAufpreis.select(entryIndex(window.cboAufpreis.items, request.surcharge));
  window.cboRabatt.select(entryIndex(window.cboRabatt.items, request.discount));
}

// As if typed: through the box's own filter and wiring. A refused character is a wrong argument, not a dropped one.
void type(const base::Wiring& wiring, base::TextBox& box, const std::optional<std::string>& text, const char* option) {
  if (!text) return;
  const base::Wiring::Filtered filtered = wiring.filtered(box, *text);
  if (filtered.refused) throw WrongArgument(std::string(option) + " verlangt eine Zahl, nicht \"" + *text + "\".");
  box.text = filtered.text;
  wiring.fire(box, Event::changed);
}

void typeAmounts(const base::Wiring& wiring, frame::MainWindow& window, const PriceRequest& request) {
  type(wiring, window.txtProzent, request.surchargePercentage, "--aufpreis-prozent");
  type(wiring, window.txtProzentDM, request.surchargeAmount, "--aufpreis-betrag");
  type(wiring, window.txtRabatt, request.discountPercentage, "--rabatt-prozent");
  type(wiring, window.txtRabattDM, request.discountAmount, "--rabatt-betrag");
}

std::string price(const PriceRequest& request, const Streams& streams) {
  TerminalPlatform platform;
  const std::unique_ptr<lifecycle::Program> assembled = lifecycle::assemble(platform, directory(request));
  lifecycle::Program& program = *assembled;
  program.information.directory.clear();  // the terminal form tells its errors, it keeps no log
  readSettings(program, request, streams.error);
  const MainParts parts = lifecycle::partsOf(program);

  parts.window.rtfText.setPlainText(lettering(request, streams));
  loadLists(parts);
  setInputs(parts, request);
  calculate(parts);
  typeAmounts(program.wiring, parts.window, request);
  if (platform.message()) throw base::Failure(base::ErrorNumber::none, platform.message()->text);
  return request.json ? json(parts.window) : table(parts.window);
}

}  // namespace

int runPriceCommand(std::span<const std::string> arguments, const Streams& streams) {
  try {
    std::vector<std::string> texts(arguments.begin(), arguments.end());
    for (std::string& text : texts) text = decoded(std::move(text));
    const PriceRequest request = parseArguments(texts);
    streams.out << (request.help      ? std::string(kPriceHelp)
                    : request.version ? base::versionLine() + "\n"
                                      : price(request, streams))
                << std::flush;
    if (!streams.out) throw base::Failure(base::ErrorNumber::deviceIo, "Die Ausgabe konnte nicht geschrieben werden.");
    return 0;
  } catch (const WrongArgument& wrong) {
    streams.error << "tessik: " << wrong.what() << " (tessik kalkuliere --help zeigt die Optionen)\n";
    return kExitWrongArgument;
  } catch (const std::exception& failure) {
    streams.error << "tessik: " << failure.what() << '\n';
    return kExitFailure;
  }
}

}  // namespace terminal
