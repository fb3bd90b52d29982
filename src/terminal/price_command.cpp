// "tessik kalkuliere".
#include "terminal/price_command.h"

#include <algorithm>
#include <exception>
#include <istream>
#include <iterator>
#include <ostream>

#include "app/lifecycle/program.h"
#include "app/lifecycle/program_directory.h"
#include "app/lifecycle/start_up.h"
#include "app/lifecycle/version.h"
#include "app/settings/pricing_settings.h"
#include "base/code_page.h"
#include "base/files.h"
#include "base/memory_rich_text.h"
#include "base/number.h"
#include "base/text.h"
#include "terminal/arguments.h"
#include "terminal/output.h"
#include "terminal/terminal_platform.h"

namespace terminal {
namespace {

using app::commands::MainParts;
using base::Event;

// UTF-8 with or without its mark, or code page 1252.
std::string decoded(std::string bytes) {
  if (bytes.starts_with(base::kUtf8Mark)) bytes.erase(0, base::kUtf8Mark.size());
  return base::isValidUtf8(bytes) ? bytes : base::fromCodePage1252(bytes);
}

std::string readAll(std::istream& stream) {
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string lettering(const PriceRequest& request, const Streams& streams) {
  if (!request.file) return decoded(request.text.value_or(""));
  std::string bytes;
  if (*request.file == "-") {
    bytes = readAll(streams.in);
  } else {
    auto file = base::readFile(*request.file);
    if (!file) throw base::fileFailure(base::ErrorNumber::fileNotFound, *request.file);
    bytes = std::move(*file);
  }
  if (bytes.starts_with("{\\rtf")) {
    throw base::Failure(base::ErrorNumber::invalidCall,
                        "Nur reine Textdateien werden gelesen, kein RTF: " + *request.file);
  }
  return decoded(std::move(bytes));
}

void overrideSettings(app::settings::Rates& rates, const PriceRequest& request) {
  rates.vatPercent = request.vatPercent.value_or(rates.vatPercent);
  rates.unit = request.unit.value_or(rates.unit);
  rates.countBlanks = request.countBlanks.value_or(rates.countBlanks);
}

int heightIndex(const base::ItemList& heights, const PriceRequest& request) {
  if (request.heightIndex) {
    if (heights.holds(*request.heightIndex)) return *request.heightIndex;
    throw WrongArgument("Die Preisliste hat keine Buchstabenhöhe Nr. " + std::to_string(*request.heightIndex) + ".");
  }
  const auto found = std::find(heights.begin(), heights.end(), *request.height);
  if (found != heights.end()) return static_cast<int>(found - heights.begin());
  throw WrongArgument("Die Preisliste hat keine Buchstabenhöhe \"" + *request.height + "\".");
}

// An entry that the list does not hold joins it for this one calculation.
int entryIndex(base::ItemList& entries, const std::string& text) {
  const auto found = std::find(entries.begin(), entries.end(), text);
  if (found != entries.end()) return static_cast<int>(found - entries.begin());
  entries.add(text);
  return entries.size() - 1;
}

void setPieceAddition(const MainParts& parts, const PriceRequest& request) {
  if (!request.pieceAddition) return;
  const std::string& text = *request.pieceAddition;
  if (text.find_first_not_of("0123456789.,+-") != std::string::npos || text.empty()) {
    throw WrongArgument("--zusatz verlangt einen Betrag, nicht \"" + text + "\".");
  }
  parts.results.pieceAddition = base::Currency::fromDouble(base::typedAmount(text));
}

void chooseEntries(const MainParts& parts, const PriceRequest& request) {
  if (request.surcharge) {
    selectSurcharge(parts, entryIndex(parts.window.cboAufpreis.items, *request.surcharge));
  }
  if (request.discount) {
    selectDiscount(parts, entryIndex(parts.window.cboRabatt.items, *request.discount));
  }
}

// As if typed: through the box's own filter and wiring. A refused character is a wrong argument, not a dropped one.
void type(const base::Wiring& wiring, base::TextBox& box, const std::optional<std::string>& text) {
  if (!text) return;
  const base::Wiring::Filtered filtered = wiring.filtered(box, *text);
  if (filtered.refused) throw WrongArgument("\"" + *text + "\" ist kein Betrag.");
  box.text = filtered.text;
  wiring.fire(box, Event::changed);
}

void typeAmounts(const base::Wiring& wiring, app::frame::MainWindow& window, const PriceRequest& request) {
  type(wiring, window.txtProzent, request.surchargePercentage);
  type(wiring, window.txtProzentDM, request.surchargeAmount);
  type(wiring, window.txtRabatt, request.discountPercentage);
  type(wiring, window.txtRabattDM, request.discountAmount);
}

void price(const PriceRequest& request, const Streams& streams) {
  TerminalPlatform platform;
  base::MemoryRichText document([&platform](std::string_view text) { return platform.composed(text); });
  app::errors::Reporter reporter(platform);
  app::lifecycle::Program program;
  program.paths.programDirectory =
      app::lifecycle::programDirectory(app::lifecycle::directoryCandidates(request.programDirectory));
  program.settings = app::settings::readForPricing(program.paths);
  overrideSettings(program.settings.rates, request);
  const MainParts parts = app::lifecycle::mainParts(program, platform, document, reporter);
  app::lifecycle::wire(program, parts);

  document.setPlainText(lettering(request, streams));
  if (request.quantity) program.main.txtStück.text = *request.quantity;
  setPieceAddition(parts, request);
  app::lifecycle::loadLists(parts);
  if (request.height || request.heightIndex) {
    selectHeight(parts, heightIndex(program.main.cboBuchstabenhöhe.items, request));
  }
  chooseEntries(parts, request);
  typeAmounts(program.wiring, program.main, request);
  if (platform.message()) throw base::Failure(base::ErrorNumber::none, platform.message()->text);
  streams.out << (request.json ? json(program.main) : table(program.main)) << std::flush;
  if (!streams.out) throw base::Failure(base::ErrorNumber::deviceIo, "Die Ausgabe konnte nicht geschrieben werden.");
}

}  // namespace

int runPriceCommand(std::span<const std::string> arguments, const Streams& streams) {
  try {
    const PriceRequest request = parseArguments(arguments);
    if (request.help) {
      streams.out << kPriceHelp;
    } else if (request.version) {
      streams.out << app::lifecycle::versionLine() << '\n';
    } else {
      price(request, streams);
    }
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
