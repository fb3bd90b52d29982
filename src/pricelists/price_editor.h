// The editor of the price list: cap heights and the price of one character of each.
#pragma once

#include <string>

#include "pricelists/price_table.h"

namespace pricelists {

struct PriceEditorWindow : PriceTableWindow {
  PriceEditorWindow() : PriceTableWindow("frmData") {}
};

/// What the editor of the price list works on; all of it outlives the wiring.
extern const PriceTableKind kPriceEditor;

/// Opens the editor, with `recovered` rows if there are any, and waits until it is closed; true when the list was
/// saved.
bool editPriceList(const PriceTable& editor, const std::string& recovered = {});

}  // namespace pricelists
