// Roll goods: foil sold by area, priced from a list of foils of its own.
//
// The three inputs have "." as their decimal separator. While one of them is being typed and comes to 0 without being
// empty, nothing is calculated yet, so that 0.5 can be typed; any other calculation puts 1 in its place.
#pragma once

#include <string>
#include <string_view>

#include "base/currency.h"
#include "pricelists/price_table.h"

namespace pricelists {

// clang-format off
#define TESSIK_ROLL_GOODS_CONTROLS(CONTROL)           \
  CONTROL(base::TextBox, txtHöhe)         /* length */ \
  CONTROL(base::TextBox, txtBreite)                   \
  CONTROL(base::TextBox, txtStück)                    \
  CONTROL(base::OptionButton, Option1)    /* mm */    \
  CONTROL(base::OptionButton, Option2)    /* cm */    \
  CONTROL(base::OptionButton, Option3)    /* m */     \
  CONTROL(base::Label, lblPreis)                      \
  CONTROL(base::Label, lblPBrutto)                    \
  CONTROL(base::Button, cmdNotiz)                     \
  CONTROL(base::Button, cmdContainerLook)
// clang-format on

inline constexpr calc::PriceList kFoilList{.names = "Folien", .prices = "FPreise", .row = "der Folie"};

struct RollGoodsWindow : PriceTableWindow {
  RollGoodsWindow() : PriceTableWindow("frmVoll") {}

  TESSIK_ROLL_GOODS_CONTROLS(TESSIK_DECLARE_CONTROL)

  template <typename Visitor>
  void eachControl(Visitor&& visit) {
    PriceTableWindow::eachControl(visit);
    TESSIK_ROLL_GOODS_CONTROLS(TESSIK_VISIT_CONTROL)
  }

  std::string Einheit = "m";
  base::Currency Stückpreis;   // net
  base::Currency Gesamtpreis;  // of all pieces, net
};

/// The net price of one piece, its sides in `unit` ("mm", "cm", "m"), at a price of the square metre.
base::Currency rollPiecePrice(double length, double width, std::string_view unit, double pricePerSquareMetre);

/// The net price of all pieces.
base::Currency rollTotal(base::Currency piece, double pieces);

/// All of it outlives the wiring.
struct RollGoods {
  RollGoodsWindow& window;
  CsvImportWindow& csvImport;
  const settings::Paths& paths;
  const settings::Rates& rates;
  base::Platform& platform;
  errors::Reporter& reporter;
};

void wireRollGoods(base::Wiring& wiring, const RollGoods& goods);

/// Shows the window beside the others, with `recovered` rows if there are any; one that is open already comes to the
/// front as it is.
void showRollGoods(const RollGoods& goods, const std::string& recovered = {});

/// To be called when another price file is in place: a window that is open reads it, in place of what was not saved.
/// The foil that was selected is so again if it is there still.
void readRollGoodsAgain(const RollGoods& goods);

/// To be called when the rates have changed: a window that is open goes by them.
void followRates(const RollGoods& goods);

/// What the window shows as a block of text. The amounts in its information are divided by the mark's rate although
/// they are in euro.
std::string rollGoodsNote(const RollGoodsWindow& window, const settings::Rates& rates,
                          const base::NumberFormat& format);

}  // namespace pricelists
