// The pocket calculator: keys in, display out, through the window's keyboard and its keys.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "base/text.h"
#include "support/desk.h"

namespace {

using base::Event;
using support::Desk;

// Beside the keyboard's own: M and € are the currency keys, ~ clears the entry.
struct CalculatorDesk : Desk {
  CalculatorDesk() { click(window.mnuCalculator); }

  calculator::CalculatorWindow& calculator = program.windows.calculator;

  void press(char32_t key) {
    if (key == U'M') return click(calculator.cmdDM);
    if (key == U'€') return click(calculator.cmdEURO);
    if (key == U'~') return click(calculator.CancelEntry);
    program.wiring.fireKey(calculator, key);
  }
  void fail(int number) {
    const std::string text =
        number == 6 ? "Überlauf: Die Zahl ist zu groß" : "Typen unverträglich: Hier wird eine Zahl erwartet";
    platform.expectMessage({.text = text, .title = "Fehler", .icon = base::MessageIcon::stop});
  }
};

TEST(Calculator, KeysInDisplayOut) {
  const std::string digits40(40, '9');
  std::string huge(301, '0');
  huge[0] = '1';
  struct Row {
    std::string keys;
    std::string display;
    int failure = 0;
  };
  const Row rows[] = {{"", "0,"},
                      {"0070,50", "0070,50"},
                      {",5+", "0,5"},
                      {"1,2,3=", "1,23"},
                      {"1+2*3=", "9"},
                      {"1+2=3", "3,"},
                      {"1+2=3=", "3"},
                      {"2/3=", "0,666666666666667"},
                      {"1/8\r", "0,125"},
                      {"0,1+0,2=", "0,3"},
                      {"1/100000=", "1E-05"},
                      {"-5+3=", "-2"},
                      {"-,5*4=", "-2"},
                      {"--5+3=", "-2"},
                      {"8x-2=", "-16"},
                      {"9-4=-1=", "4"},
                      {"5--", "-"},
                      {"5---", "-", 13},
                      {"7/0=", "7"},
                      {"7/0=+1=", "8"},
                      {"5%", "0,05"},
                      {"200X15%=", "30"},
                      {"100+10%=", "10"},
                      {"5%%=", "0"},
                      {"9+5%%=", "0,0005"},
                      {"5+3~4=", "9"},
                      {"5+~=", "0,"},
                      {"5+3C2=", "2,"},
                      {"100M", "195,58"},
                      {"100M€", "100,00"},
                      {"100Me", "100,00"},
                      {"100MD", "100,00"},
                      {"100E", "100,"},
                      {"100Md", "195,58"},
                      {"100M1", "1951,"},
                      {"100M+10=", "205,58"},
                      {"10+100M=", "205,58"},
                      {digits40 + "=", std::string(40, '9') + ","},
                      {digits40 + "+0=", "1E+40"},
                      {huge + "*10=", "1E+301"},
                      {huge + "*" + huge + "=", huge + ",", 6},
                      {std::string(310, '9') + "=", std::string(310, '9') + ",", 6},
                      {"0," + std::string(400, '0') + "1+2=", "2"}};
  for (const Row& row : rows) {
    CalculatorDesk desk;
    if (row.failure != 0) desk.fail(row.failure);
    if (row.keys.starts_with("7/0")) {
      desk.platform.expectMessage({.text = "Division durch Null ist nicht möglich",
                                   .title = "Rechner",
                                   .icon = base::MessageIcon::exclamation});
    }
    for (std::string_view keys = row.keys; !keys.empty();) desk.press(base::takeCodePoint(keys));
    EXPECT_EQ(desk.calculator.Readout.text, row.display) << row.keys;
  }
}

TEST(Calculator, ACurrencyKeyServesOnceAndEveryClearingBringsTheEuroBack) {
  for (const char32_t back : {U'c', U'~', U'€'}) {
    CalculatorDesk desk;
    const auto& calculator = desk.calculator;
    const auto shown = [&] {
      return calculator.lblWährung.text + (calculator.cmdDM.enabled ? " +DM" : "") +
             (calculator.cmdEURO.enabled ? " +EURO" : "");
    };
    EXPECT_EQ(shown(), "Währung: € / EUR +DM");
    desk.press(U'M');
    EXPECT_EQ(shown(), "Währung: DM +EURO");
    desk.press(back);
    EXPECT_EQ(shown(), "Währung: € / EUR +DM");
  }
}

TEST(Calculator, ItStandsInFrontAsTheSettingSaysAndOpensOnce) {
  CalculatorDesk desk;
  EXPECT_FALSE(desk.calculator.staysOnTop);
  desk.press(U'5');
  desk.program.settings.calculatorInFront = 1;
  desk.click(desk.window.mnuCalculator);
  EXPECT_EQ(desk.calculator.Readout.text, "5,") << "open already";
  desk.press(U'C');
  EXPECT_TRUE(desk.calculator.staysOnTop);
}

TEST(Calculator, RoundsHalvesUpInBinary) {
  EXPECT_EQ(calculator::Runden(1.125, 2), 1.13);
  EXPECT_EQ(calculator::Runden(-1.125, 2), -1.12);
  EXPECT_EQ(calculator::Runden(-1.126, 2), -1.13);
  EXPECT_EQ(calculator::Runden(1.005, 2), 1.0) << "stored slightly below";
}

}  // namespace
