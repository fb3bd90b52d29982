// The windows of price lists in the program.
#include "commands/price_list_commands.h"

#include <algorithm>
#include <string>

#include "calc/price_database.h"
#include "commands/note_commands.h"

namespace commands {
namespace {

using base::Event;

pricelists::PriceTable editorOf(const MainParts& parts) {
  return {.window = parts.priceEditor,
          .kind = pricelists::kPriceEditor,
          .csvImport = parts.csvImport,
          .paths = parts.paths,
          .rates = parts.settings.rates,
          .platform = parts.platform,
          .reporter = parts.reporter};
}

pricelists::RollGoods goodsOf(const MainParts& parts) {
  return {.window = parts.rollGoods,
          .csvImport = parts.csvImport,
          .paths = parts.paths,
          .rates = parts.settings.rates,
          .platform = parts.platform,
          .reporter = parts.reporter};
}

// The height that was selected, if it is there still; else the first.
void selectHeight(base::ComboBox& heights, const std::string& former) {
  const auto found = std::find(heights.items.begin(), heights.items.end(), former);
  heights.select(found == heights.items.end() ? 0 : static_cast<int>(found - heights.items.begin()));
}

void editPrices(const MainParts& parts) { editRecoveredPrices(parts, {}); }

void priceRollGoods(const MainParts& parts) { pricelists::showRollGoods(goodsOf(parts)); }

void noteRollGoods(const MainParts& parts) {
  const std::string note =
      pricelists::rollGoodsNote(parts.rollGoods, parts.settings.rates, parts.platform.numberFormat());
  appendBlock(parts, base::plainDocument(note, {}));
}

}  // namespace

void editRecoveredPrices(const MainParts& parts, const std::string& recovered) {
  if (pricelists::editPriceList(editorOf(parts), recovered)) readPricesAgain(parts);
}

void showRecoveredFoils(const MainParts& parts, const std::string& recovered) {
  pricelists::showRollGoods(goodsOf(parts), recovered);
}

void EditDatabase(const MainParts& parts) {
  base::tagged("MAIN-EditDatabase", [&parts] { calc::LoadPriceDatabase(parts.window, parts.paths.priceDatabase()); });
}

void readPricesAgain(const MainParts& parts) {
  const std::string former = parts.window.cboBuchstabenhöhe.text;
  errors::reporting(parts.reporter, "MAIN-EditDatabase", [&] { EditDatabase(parts); });
  selectHeight(parts.window.cboBuchstabenhöhe, former);
  calculate(parts);
}

void readFoilsAgain(const MainParts& parts) { pricelists::readRollGoodsAgain(goodsOf(parts)); }

void followRates(const MainParts& parts) { pricelists::followRates(goodsOf(parts)); }

void wirePriceLists(base::Wiring& wiring, const MainParts& parts) {
  pricelists::wirePriceTable(wiring, editorOf(parts));
  pricelists::wireRollGoods(wiring, goodsOf(parts));
  pricelists::wireCsvImport(wiring, parts.csvImport, parts.platform);
  const frame::MainWindow& window = parts.window;
  const auto edit = reported(parts, "MAIN-mnuDatenbank_Click", editPrices);
  wiring.on(window.mnuDatenbank, Event::click, edit);
  for (const Event key : {Event::keyInsert, Event::keyDelete}) wiring.on(window.cboBuchstabenhöhe, key, edit);
  wiring.on(window.mnuVoll, Event::click, reported(parts, "MAIN-mnuVoll_Click", priceRollGoods));
  wiring.on(parts.rollGoods.cmdNotiz, Event::click, reported(parts, "VOLL-cmdNotiz", noteRollGoods));
  wiring.on(parts.rollGoods.cmdContainerLook, Event::click, reported(parts, "VOLL-cmdContainerLook", showContainer));
}

}  // namespace commands
