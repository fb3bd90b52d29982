// Surcharges and discounts typed, chosen and picked, and the amounts added by hand.
#include "calc/adjustments.h"

#include <gtest/gtest.h>

#include <string>

#include "support/desk.h"

namespace {

using base::Event;
using frame::MainWindow;
using support::Desk;

// 80 characters at 1 EUR: the net price is 80.
struct PricedDesk : Desk {
  PricedDesk() {
    offerHeights({{"50", "1"}});
    write(std::string(80, 'x'));
  }
};

TEST(Adjustments, EachBoxKeepsItsPartnerInStep) {
  struct Row {
    base::TextBox MainWindow::*box;
    std::string typed;
    std::string shown;
    base::TextBox MainWindow::*partner;
    std::string partnerText;
    std::string total;
  };
  const Row rows[] = {
      {&MainWindow::txtProzent, "12,5", "12.5", &MainWindow::txtProzentDM, "10.00", "90,00 EUR"},
      {&MainWindow::txtRabatt, "12.5", "12.5", &MainWindow::txtRabattDM, "10.00", "70,00 EUR"},
      {&MainWindow::txtRabattDM, "10", "10", &MainWindow::txtRabatt, "12.50", "70,00 EUR"},
      {&MainWindow::txtProzentDM, "-1a0€", "10", &MainWindow::txtProzent, "12.50", "90,00 EUR"},
      {&MainWindow::txtProzentDM, "0.005", "0.005", &MainWindow::txtProzent, "0.01", "80,01 EUR"},
      {&MainWindow::txtProzent, "", "0.00", &MainWindow::txtProzentDM, "0.00", "80,00 EUR"},
      {&MainWindow::txtRabattDM, "", "0.00", &MainWindow::txtRabatt, "0.00", "80,00 EUR"},
      {&MainWindow::txtProzent, "1..5", "1..5", &MainWindow::txtProzentDM, "0.80", "80,80 EUR"},
  };
  for (const Row& row : rows) {
    PricedDesk desk;
    desk.type(desk.window.*row.box, row.typed);
    EXPECT_EQ((desk.window.*row.box).text, row.shown) << row.typed;
    EXPECT_EQ((desk.window.*row.partner).text, row.partnerText) << row.typed;
    EXPECT_EQ(desk.window.lblPNettoAuf.text, row.total) << row.typed;
  }
}

TEST(Adjustments, AnAmountOnNothingIsADivisionByZero) {
  PricedDesk desk;
  desk.type(desk.window.txtStück, "0");
  desk.platform.expectMessage({.text =
                                   "Bitte zuerst eine Texthöhe mit Preis und eine Stückzahl ab 1 angeben: Solange der "
                                   "Nettopreis 0 ist, gibt es von ihm keinen Prozentsatz. (Division durch Null)",
                               .title = "Fehler",
                               .icon = base::MessageIcon::stop});
  desk.type(desk.window.txtProzentDM, "5");
  EXPECT_EQ(desk.window.txtProzent.text, "");
}

settings::AdjustmentList entries(std::initializer_list<std::pair<const char*, const char*>> rows) {
  settings::AdjustmentList list;
  std::size_t slot = 0;
  for (const auto& [amount, remark] : rows) {
    list.amounts.at(slot) = amount;
    list.remarks.at(slot++) = remark;
  }
  list.count = static_cast<int>(rows.size());
  return list;
}

TEST(Adjustments, TheToolTipOfBothListsNamesTheSurchargesRemark) {
  PricedDesk desk;
  settings::Adjustments& lists = desk.program.settings.adjustments;
  lists.surcharges = entries({{"10 %", "Eilzuschlag"}});
  lists.discounts = entries({{"5.00 EUR", "Stammkunde"}, {"", ""}});
  calc::fillAdjustments(desk.window.cboAufpreis, lists.surcharges);
  calc::fillAdjustments(desk.window.cboRabatt, lists.discounts);
  EXPECT_EQ(desk.window.cboRabatt.items.size(), 3);

  desk.choose(desk.window.cboRabatt, 1);
  EXPECT_EQ(desk.window.cboRabatt.toolTip, "5.00 EUR (Eilzuschlag)");
  EXPECT_EQ(desk.window.lblcboChange1.text + desk.window.lblcboChange2.text, "21");
  desk.choose(desk.window.cboAufpreis, 0);
  EXPECT_EQ(desk.window.cboAufpreis.toolTip, "0.00 EUR ()");
  EXPECT_EQ(desk.window.lblcboChange1.text + desk.window.lblcboChange2.text, "12");
  EXPECT_EQ(desk.window.lblPNettoAuf.text, "75,00 EUR");
}

TEST(Adjustments, ThePickerOffersWhatHasAnAmountAndMayBeLeft) {
  PricedDesk desk;
  settings::AdjustmentList& surcharges = desk.program.settings.adjustments.surcharges;
  surcharges = entries({{"10 %", "Eilzuschlag"}, {"", "leer"}, {"5.00 EUR", ""}});
  calc::fillAdjustments(desk.window.cboAufpreis, surcharges);
  calc::PickerWindow& picker = desk.program.windows.picker;

  desk.platform.expectModal("frmAuswahlAR", [&](base::Window&) {
    EXPECT_EQ(std::vector<std::string>(picker.lstAuswahl.items.begin(), picker.lstAuswahl.items.end()),
              (std::vector<std::string>{"0.00 EUR -> FEST", "10 % -> Eilzuschlag", "5.00 EUR"}));
    picker.lstAuswahl.current = 2;
    desk.program.wiring.fire(picker, Event::rightPress);
  });
  desk.click(desk.window.cmdAufpreisListe);
  EXPECT_EQ(desk.window.cboAufpreis.text, "");
  surcharges = entries({{"", ""}, {"5 %", "x"}});
  desk.platform.expectModal("frmAuswahlAR", [&](base::Window& window) {
    EXPECT_EQ(window.caption, "Auswahl Aufpreise");
    EXPECT_EQ(picker.lstAuswahl.items.size(), 1);
    desk.program.wiring.fire(picker.lstAuswahl, Event::keyEscape);
  });
  desk.click(desk.window.cmdAufpreisListe);
}

TEST(RunningSum, AmountsAddedByHandMakeUpTheSum) {
  Desk desk;
  desk.platform.expectAnyMessage(base::MessageAnswer::ok);
  for (const char* amount : {"12,5", "0", "", "3.005", "-1", "0,001", "999999999999999999"}) {
    desk.type(desk.window.txtAddPerHand, amount);
    desk.window.txtAddPerHand.wantsFocus = false;
    desk.click(desk.window.cmdAddPerHand);
    EXPECT_EQ(desk.window.txtAddPerHand.wantsFocus, desk.window.txtAddPerHand.text.empty() && *amount != 0) << amount;
  }
  desk.window.txtAddPerHand.text.clear();
  desk.window.cboCalc.items.add("ohne Zahl");
  desk.click(desk.window.cmdAddPerHand);
  EXPECT_EQ(std::vector<std::string>(desk.window.cboCalc.items.begin(), desk.window.cboCalc.items.end()),
            (std::vector<std::string>{"12.50 EUR", "3.01 EUR", "-1.00 EUR", "ohne Zahl"}));
  EXPECT_EQ(desk.window.lblRCalc.text, "14,51 EUR");
}

TEST(RunningSum, HoldsAsManyEntriesAsA16BitIndexCounts) {
  PricedDesk desk;
  desk.window.cboCalc.items.assign(std::vector<std::string>(32'766, "0.01 EUR"));
  desk.click(desk.window.mnuCalcAdd);
  desk.click(desk.window.cmdAdd);
  EXPECT_EQ(desk.window.cboCalc.marked, std::vector{32'766});
  desk.type(desk.window.txtAddPerHand, "3");
  desk.platform.expectAnyMessage(base::MessageAnswer::ok);
  desk.click(desk.window.cmdAddPerHand);
  for (const int left : {32'767, 32'766, 32'765}) {
    EXPECT_EQ(desk.window.cboCalc.items.size(), left);
    desk.click(desk.window.cmdSub);
  }
}

}  // namespace
