// Roll goods: areas in three units, the rounding of the price of a piece, and the note.
#include "pricelists/roll_goods.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/desk.h"

namespace pricelists {
namespace {

TEST(RollGoods, ArePricedByAreaInEachUnitAndRoundedByThePiece) {
  struct Row {
    double length;
    double width;
    std::string unit;
    double price;
    double pieces;
    std::int64_t piece;  // in ten-thousandths
    std::int64_t total;
  };
  const std::vector<Row> rows = {
      {100, 50, "cm", 12, 2, 60'000, 120'000}, {1000, 1000, "mm", 12.34, 1, 123'400, 123'400},
      {1.5, 2, "m", 10, 3, 300'000, 900'000},  {1, 1, "mm", 50, 1000, 0, 0},
      {1, 2, "mm", 50, 1000, 1, 1000},         {0.5, 0.5, "m", 0, 1, 0, 0},
      {1, 1, "m", 0.33335, 2.5, 3334, 8335},
  };
  for (const Row& row : rows) {
    const base::Currency piece = rollPiecePrice(row.length, row.width, row.unit, row.price);
    EXPECT_EQ(piece.tenThousandths(), row.piece) << row.length << row.unit;
    EXPECT_EQ(rollTotal(piece, row.pieces).tenThousandths(), row.total) << row.length << row.unit;
  }
}

TEST(RollGoods, AreToldToTheContainerLineByLine) {
  support::Desk desk;
  RollGoodsWindow& window = desk.program.windows.rollGoods;
  desk.click(desk.window.mnuVoll);
  window.List1.items.add("Matt");
  window.List2.items.add("        9.78 EUR");
  window.List1.current = 0;
  desk.click(window.List1);
  desk.click(window.Option2);
  desk.type(window.txtHöhe, "");
  EXPECT_EQ(window.txtHöhe.text, "1.00");
  desk.type(window.txtHöhe, "100,0");
  desk.type(window.txtBreite, "50");
  desk.type(window.txtStück, "0");
  desk.program.wiring.fire(window.txtStück, base::Event::leaving);
  EXPECT_EQ(window.txtStück.text, "1");
  desk.type(window.txtStück, "4");
  for (int i = 0; i < 2; ++i) desk.click(window.cmdNotiz);
  const std::string note =
      "\r\nFolien-Rollenware: \r\n\r\nFolie: \t\t\t\tMatt\r\nPreis pro qm: \t\t\t9.78 EUR\r\n\r\n"
      "Stückzahl: \t\t\t4\r\nLänge * Breite in cm:   \t\t100.0 * 50 cm\r\n"
      "Stückpreis Netto:      \t\t4,89 EUR\r\nGesamtpreis Netto:   \t\t19,56 EUR\r\nMwst. in %: \t\t\t16 %\r\n"
      "Gesamtpreis Brutto: \t\t22,69 EUR\r\n\r\n\r\nZur Information -  entspricht in EURO:\r\n\r\n"
      "Nettopreis in EURO: \t\t10,00 EUR\r\nBruttopreis in EURO: \t\t11,60 EUR\r\n\r\n" +
      std::string(125, '-') + "\r\n\r\n";
  EXPECT_EQ(desk.parts.container.rtfTextC.plainText(), note + note);
  desk.parts.containerUndo.undo();
  EXPECT_EQ(desk.parts.container.rtfTextC.plainText(), note);
}

}  // namespace
}  // namespace pricelists
