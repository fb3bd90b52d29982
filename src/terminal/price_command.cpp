// "tessik kalkuliere".
#include "terminal/price_command.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <istream>
#include <memory>
#include <ostream>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "base/encoding.h"
#include "base/file_replacement.h"
#include "base/files.h"
#include "base/number.h"
#include "base/text.h"
#include "base/version.h"
#include "calc/adjustments.h"
#include "calc/offer_note.h"
#include "calc/price_database.h"
#include "editor/rtf_reader.h"
#include "lifecycle/assembly.h"
#include "lifecycle/first_use.h"
#include "lifecycle/program_directory.h"
#include "printing/offer.h"
#include "settings/settings_files.h"
#include "settings/user_keys.h"
#include "terminal/arguments.h"
#include "terminal/output.h"
#include "terminal/terminal_platform.h"

namespace terminal {
namespace {

using base::Event;
using commands::MainParts;

// Of a regular file all at once, since a text that grows piece by piece stands in memory twice.
std::string readAll(std::istream& stream, std::size_t expected, const std::string& name) {
  std::string bytes;
  bytes.reserve(expected + 1);
  std::array<char, 65536> buffer{};
  while (stream.read(buffer.data(), buffer.size()) || stream.gcount() > 0) {
    bytes.append(buffer.data(), static_cast<std::size_t>(stream.gcount()));
  }
  if (stream.bad() || !stream.eof()) throw base::fileFailure(base::ErrorNumber::deviceIo, name);
  return bytes;
}

std::string readText(const std::string& file, const Streams& streams) {
  namespace fs = std::filesystem;
  if (file == "-") return readAll(streams.in, 0, "Standardeingabe");
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (!fs::exists(status)) throw base::fileFailure(error.value(), file);
  if (fs::is_directory(status)) throw base::fileFailure(base::ErrorNumber::pathFileAccess, file);
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw base::fileFailure(base::ErrorNumber::permissionDenied, file);
  const std::uintmax_t size = fs::is_regular_file(status) ? fs::file_size(file, error) : 0;
  return readAll(stream, error ? 0 : static_cast<std::size_t>(size), file);
}

void setLettering(base::RichText& document, const PriceRequest& request, const Streams& streams) {
  if (!request.file) return document.setPlainText(request.text.value_or(""));
  std::string bytes = readText(*request.file, streams);
  if (editor::isRtf(bytes)) return document.setDocument(editor::readRtf(bytes));
  // A plain text is spared the way over a document, which takes more memory than the text.
  document.setPlainText(base::decoded(std::move(bytes)));
}

lifecycle::ProgramDirectory chosenDirectory(const PriceRequest& request) {
  lifecycle::ProgramDirectory directory =
      lifecycle::programDirectory(lifecycle::directoryCandidates(request.programDirectory));
  if (const auto fault = lifecycle::faultOf(directory)) throw WrongArgument(*fault);
  return directory;
}

// Messages have a line for the place of a fault; in the terminal each is one line.
void tellNote(std::ostream& notes, const std::string& text) {
  notes << "tessik: Hinweis: " << base::inOneLine(text) << '\n';
}

// What is wrong with a stored count is told and passed over, as in the window; any other problem ends.
void readSettings(lifecycle::Program& program, const PriceRequest& request, std::ostream& notes) {
  const settings::ReadReport report =
      settings::readSettings(program.paths, program.settings, settings::MissingNumber::keepsDefault);
  for (const settings::ReadProblem& problem : report.problems) {
    if (problem.number != base::ErrorNumber::indexOutOfRange) throw settings::failureOf({problem});
    tellNote(notes, settings::failureOf({problem}).text());
  }
  settings::Rates& rates = program.settings.rates;
  rates.vatPercent = request.vatPercent.value_or(rates.vatPercent);
  rates.unit = request.unit.value_or(rates.unit);
  rates.countBlanks = request.countBlanks.value_or(rates.countBlanks);
}

// Before the first start of the window there is no price list, and the one of a new directory stands in for it.
void loadPrices(const MainParts& parts, const lifecycle::ProgramDirectory& directory, std::ostream& notes) {
  const std::string file = parts.paths.priceDatabase();
  if (directory.isUsersOwn && lifecycle::isFirstUse(directory.path)) {
    calc::loadPrices(parts.window, lifecycle::samplePriceList(), file);
    tellNote(notes, "Das sind Beispielpreise; eine eigene Preisliste legt der erste Start mit Fenster an.");
  } else {
    base::tagged("MAIN-tmrLoad", [&] { calc::LoadPriceDatabase(parts.window, file); });
  }
}

void loadAdjustments(const MainParts& parts) {
  calc::fillAdjustments(parts.window.cboAufpreis, parts.settings.adjustments.surcharges);
  calc::fillAdjustments(parts.window.cboRabatt, parts.settings.adjustments.discounts);
}

// A price of 0 for want of one is told.
void tellMissingPrice(const MainParts& parts, std::ostream& notes) {
  const frame::MainWindow& window = parts.window;
  const auto index = static_cast<std::size_t>(window.cboBuchstabenhöhe.selected);
  if (window.List1.items.empty()) {
    tellNote(notes, "Die Preisliste ist leer, also ist der Preis 0.\n" + parts.paths.priceDatabase());
  } else if (window.List1.items.at(index).find_first_not_of(' ') == std::string::npos) {
    tellNote(notes, "Für die Buchstabenhöhe \"" + window.cboBuchstabenhöhe.text +
                        "\" steht kein Preis in der Preisliste.\n" + parts.paths.priceDatabase());
  }
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

// As the dialog of the window was left, unless the request says otherwise. There is nothing to tell.
std::string writeOffer(lifecycle::Program& program, const PriceRequest& request) {
  base::Platform& platform = program.platform;
  settings::readUserKeys(platform, program.settings.user);
  printing::OfferWording wording = printing::storedWording(platform);
  wording.customer = request.customer.value_or(wording.customer);
  wording.comment = request.comment.value_or(wording.comment);
  const base::PrintJob offer =
      printing::offer({.window = program.windows.main, .results = program.results, .rates = program.settings.rates},
                      wording, program.settings.user.companyAddress, platform.now());
  base::replaceFile(*request.pdf, platform.pdf(offer));
  return {};
}

std::string price(const PriceRequest& request, const Streams& streams) {
  TerminalPlatform platform;
  const lifecycle::ProgramDirectory directory = chosenDirectory(request);
  const std::unique_ptr<lifecycle::Program> assembled = lifecycle::assemble(platform, directory);
  lifecycle::Program& program = *assembled;
  program.information.directory.clear();  // the terminal form tells its errors, it keeps no log
  readSettings(program, request, streams.error);
  const MainParts parts = lifecycle::partsOf(program);

  setLettering(parts.window.rtfText, request, streams);
  loadAdjustments(parts);
  loadPrices(parts, directory, streams.error);
  setInputs(parts, request);
  tellMissingPrice(parts, streams.error);
  calculate(parts);
  typeAmounts(program.wiring, parts.window, request);
  if (platform.message()) throw base::Failure(base::ErrorNumber::none, platform.message()->text);
  if (request.pdf) return writeOffer(program, request);
  if (request.note) return base::plainText(calc::offerNote(parts.window, parts.settings.rates.unit));
  return request.json ? json(parts.window) : table(parts.window);
}

}  // namespace

int runPriceCommand(std::span<const std::string> arguments, const Streams& streams) {
  try {
    std::vector<std::string> texts(arguments.begin(), arguments.end());
    for (std::string& text : texts) text = base::decoded(std::move(text));
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
  } catch (const std::exception& fault) {
    streams.error << "tessik: " << base::inOneLine(base::asFailure(fault).text()) << '\n';
    return kExitFailure;
  }
}

}  // namespace terminal
