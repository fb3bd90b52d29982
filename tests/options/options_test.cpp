// The options dialog: both lists by one set of rows, and what closing it leaves in the settings.
#include "options/options.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "options/adjustment_side.h"
#include "support/desk.h"

namespace {

using base::Event;
using options::AdjustmentSide;

// The dialog of a program stands open while `act` works one of its sides.
struct OptionsDesk : support::Desk {
  options::OptionsWindow& dialog = program.windows.optionsDialog;
  settings::Adjustments& adjustments = program.settings.adjustments;
  AdjustmentSide surcharges = options::surchargeSide(dialog, adjustments);
  AdjustmentSide discounts = options::discountSide(dialog, adjustments);

  void open(const std::function<void()>& act) {
    platform.expectModal("frmOptions", [&](base::Window& opened) {
      act();
      program.wiring.fire(opened, Event::closing);
      platform.close(opened);
    });
    click(window.mnuOptionen);
  }
  void add(const AdjustmentSide& side, const std::string& amount, const std::string& remark) {
    type(side.amount, amount);
    type(side.remark, remark);
    click(side.add);
  }
  static std::string slots(const AdjustmentSide& side) {
    std::string text;
    for (int slot = 1; slot <= 5; ++slot) text += side.stored.described(slot) + "|";
    return text;
  }
};

TEST(Options, AmountsAndRemarksEnterTheListOrAreRefusedWithAWord) {
  struct Row {
    bool isPercentage;
    std::string amount;
    std::string remark;
    std::string entry;  // empty: nothing is added
    int beeps;
    bool fails = false;
  };
  const std::string longest(300, 'x');
  const std::vector<Row> rows = {
      {true, "5", "", "5 % -> k.A.", 0},
      {false, "3", "", "3.00 EUR -> k.A.", 0},
      {true, "7.5", "a=b \"c\"", "7.5 % -> a=b \"c\"", 0},
      {false, "1234567890123456789012345678901234567890", longest,
       "1234567890123460000000000000000000000000.00 EUR -> " + longest, 0},
      {true, "", "Eil", "", 0},
      {false, "", "Eil", "", 1},
      {false, ",", "Eil", "", 0, true},
      {true, "1,2,3", "Eil", "1.2.3 % -> Eil", 0},
      {false, "1", "  ", "", 1},
      {false, "1", " [Rabatte]", "", 1},
      {true, "1", ";Eil", "", 1},
      {false, "1", "zwei\nZeilen", "1.00 EUR -> zwei Zeilen", 0},
      {false, "1", std::string(32'764, 'x'), "1.00 EUR -> " + std::string(32'764, 'x'), 0},
      {false, "1", std::string(32'766, 'x'), "", 1},
  };
  for (const Row& row : rows) {
    OptionsDesk desk;
    desk.open([&] {
      for (const AdjustmentSide& side : {desk.surcharges, desk.discounts}) {
        side.percent.checked = row.isPercentage;
        side.fixed.checked = !row.isPercentage;
        if (row.fails) desk.platform.expectAnyMessage(base::MessageAnswer::ok);
        const int beeps = desk.platform.beeps;
        desk.add(side, row.amount, row.remark);
        EXPECT_EQ(desk.platform.beeps - beeps, row.beeps) << row.amount;
        const bool isAdded = !row.entry.empty();
        EXPECT_EQ(side.list.items.size(), isAdded ? 2 : 1) << row.amount;
        EXPECT_EQ(side.hint.visible, !isAdded && !row.fails) << row.amount;
        EXPECT_EQ(side.remark.text, isAdded ? "" : row.remark) << "no remark is put in";
        EXPECT_EQ(side.stored.described(1), row.entry);
      }
    });
  }
}

TEST(Options, RowsAndSlotsPartOnPurpose) {
  OptionsDesk desk;
  for (AdjustmentSide side : {desk.surcharges, desk.discounts}) {
    desk.open([&] {
      for (const char* const amount : {"1", "2", "3"}) desk.add(side, amount, amount);
      const auto inputs = [&] { return side.add.text + "|" + side.amount.text + "|" + side.remark.text; };
      desk.click(side.menuPick);
      EXPECT_EQ(inputs(), "Ändern|3|3") << "the newest is marked";
      desk.add(side, "4", "vier");
      EXPECT_EQ(side.stored.described(3) + inputs(), "4.00 EUR -> vier&Hinzufügen||");
      desk.click(side.menuPick);
      desk.click(side.list);
      EXPECT_EQ(inputs(), "Hinzufügen||");
      side.list.current = 1;
      desk.click(side.remove);
      EXPECT_EQ(desk.slots(side), "1.00 EUR -> 1|2.00 EUR -> 2||||");
      side.list.current = 1;
      desk.click(side.menuPick);
      desk.program.wiring.fire(side.list, Event::keyDelete);
      const int beeps = desk.platform.beeps;
      desk.click(side.add);
      EXPECT_EQ(desk.platform.beeps - beeps, 1) << "the entry is gone";
      EXPECT_EQ(desk.slots(side), "1.00 EUR -> 1|2.00 EUR -> 2||||");
      EXPECT_EQ(side.count.text + " " + std::to_string(side.gauge.value), "2/100 2");
    });
    desk.open([&] {
      EXPECT_EQ(side.list.items[2], "2.00 EUR -> 2");
      side.fixed.checked = false;
      desk.click(side.menuAdd);
      EXPECT_EQ(side.list.items[3], " % -> k.A.");
      side.fixed.checked = true;
      for (int slot = 4; slot <= 100; ++slot) desk.add(side, "9", "");
      EXPECT_EQ(side.count.text + side.list.items[100], "100/1009.00 EUR -> k.A.");
      desk.add(side, "1", "x");
      EXPECT_EQ(side.list.items.size(), 101);
      EXPECT_EQ(desk.program.wiring.tipOf(side.list, 0) + desk.program.wiring.tipOf(side.list, 2), "2.00 EUR -> 2");
      desk.platform.expectMessage(
          {.text = "Sind Sie sicher das Sie alle Werte entfernen möchten?",
           .title = &side.list == &desk.dialog.cboRabatt ? "Rabatte löschen" : "Aufpreise löschen",
           .icon = base::MessageIcon::question,
           .buttons = base::MessageButtons::yesNo},
          base::MessageAnswer::yes);
      desk.click(side.clear);
      EXPECT_EQ(side.stored.described(1) + side.stored.described(100) + side.count.text, "1/100");
    });
  }
}

TEST(Options, ValuesHoldOnceTheyAreValidAndChoicesOnceTheDialogCloses) {
  OptionsDesk desk;
  settings::Settings& settings = desk.program.settings;
  settings.user.undoDepth = "viele";
  settings.adjustments.surcharges.count = 3;
  settings.adjustments.surcharges.amounts[0] = "10 %";
  settings.adjustments.surcharges.amounts[1] = "20 %";
  desk.open([&] {
    EXPECT_EQ(desk.dialog.txtRGF.text, "20");
    EXPECT_EQ(desk.dialog.ProgressBar1.value, 2) << "the last slot that is shown";
    for (const char* const refused : {"0", "100", "", "99999999999"}) {
      desk.type(desk.dialog.txtMwst, refused);
      desk.click(desk.dialog.cmdOK);
      EXPECT_TRUE(std::exchange(desk.dialog.txtMwst.wantsFocus, false)) << refused;
    }
    EXPECT_EQ(desk.platform.beeps, 4);
    desk.type(desk.dialog.txtMwst, "99");
    desk.program.wiring.fire(desk.dialog.txtMwst, Event::leaving);
    desk.type(desk.dialog.txtRGF, "100");
    desk.click(desk.dialog.cmdOK);
    desk.dialog.cboMaßeinheit.text = "Meter";
    desk.program.wiring.fire(desk.dialog.cboMaßeinheit, Event::changed);
    EXPECT_EQ(settings.rates.unit, "Meter");
    desk.dialog.optYes2.checked = false;
    desk.dialog.optYES.checked = true;
    desk.dialog.txtFirmaAnschrift.text = "nicht übernommen";
    desk.dialog.txtEingabeRR.text = "5";
  });
  EXPECT_EQ(desk.dialog.txtEingabeRR.text, "") << "a pending discount is cancelled";
  EXPECT_EQ(settings.rates.vatPercent, 99);
  EXPECT_EQ(settings.rates.unit + settings.user.undoDepth + settings.user.companyAddress, "mmviele");
  EXPECT_EQ(settings.rates.countBlanks * 2 + settings.calculatorInFront, 1);

  // What is chosen in the main window stays, at another place too.
  desk.choose(desk.window.cboAufpreis, 2);
  desk.open([&] { settings.adjustments.surcharges.amounts = {"5 %", "10 %", "20 %"}; });
  EXPECT_EQ(desk.window.cboAufpreis.selected, 3);
  desk.open([&] { settings.adjustments.surcharges.amounts = {"5 %"}; });
  EXPECT_EQ(desk.window.cboAufpreis.text, "0.00 EUR");

  desk.open([&] {
    settings.rates.unit = "cm";
    desk.platform.expectAnyMessage(base::MessageAnswer::yes);
    desk.click(desk.dialog.cmdAbbrechen);
    EXPECT_EQ(settings.rates.unit + std::to_string(settings.rates.vatPercent), "mm19");
    EXPECT_TRUE(desk.dialog.optYes2.checked && desk.dialog.optNo.checked);
  });
}

}  // namespace
