// Start-up.
#include "app/lifecycle/start_up.h"

#include "calc/adjustments.h"
#include "calc/price_database.h"
#include "editor/character_format.h"

namespace app::lifecycle {

void loadTypefaces(const commands::MainParts& parts) {
  parts.window.cboFontSelect.items.assign(parts.platform.fontFamilies());
  parts.document.setFormat(editor::startFormat());
  editor::showFormat(parts.window, parts.document);
}

void loadLists(const commands::MainParts& parts) {
  calc::fillAdjustments(parts.window.cboAufpreis, parts.settings.adjustments.surcharges);
  calc::fillAdjustments(parts.window.cboRabatt, parts.settings.adjustments.discounts);
  parts.window.cboAufpreis.select(0);
  parts.window.cboRabatt.select(0);
  calc::loadPriceDatabase(parts.window, parts.paths.priceDatabase());
  if (!parts.window.cboBuchstabenhöhe.items.empty()) {
    commands::selectHeight(parts, 0);
  } else {
    commands::calculate(parts);
  }
}

}  // namespace app::lifecycle
