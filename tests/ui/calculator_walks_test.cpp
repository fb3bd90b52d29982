// Walks through the pocket calculator, keys and clicks alone.
#include <gtest/gtest.h>

#include "walk.h"

namespace ui {
namespace {

TEST(Walk, ThePocketCalculatorIsWorkedByMouseAndKeyboardAlike) {
  const Shop shop;
  shop.write("Ostrowerk.ini",
             "[Einstellungen]\r\nMwst=16\r\nMaßeinheit=mm\r\nIndex1=3\r\nIndex2=3\r\nTVorn=1\r\nLZ=1\r\nSnd=x\r\n");
  Walk walk(shop);
  const auto& windows = walk.desktop->program().windows;
  const auto open = [&] {
    walk.press(Qt::Key_X, Qt::AltModifier);
    walk.press(Qt::Key_T);
    walk.turnTo(windows.calculator);
  };
  const auto isInFront = [&] {
    return walk.desktop->formOf(windows.calculator).windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  };
  open();
  EXPECT_TRUE(isInFront());
  walk.type("12,5*");
  walk.click("Number4");
  EXPECT_EQ(Walk::focus(), "Readout") << "a click leaves Space and Enter alone";
  walk.press(Qt::Key_Space);
  walk.press(Qt::Key_Return);
  EXPECT_EQ(walk.text("Readout"), "50");
  walk.click("cmdDM");
  EXPECT_EQ(walk.text("Readout") + walk.text("lblWährung"), "97,79Währung: DM");
  EXPECT_FALSE(walk.enabled("cmdDM"));
  walk.type("/0");
  walk.whenAsked([&](QDialog& box) {
    EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().startsWith("Division durch Null"));
    EXPECT_FALSE(isInFront()) << "the calculator would hide what it waits for";
    QTest::keyClick(&box, Qt::Key_Return);
  });
  walk.type("=");
  EXPECT_TRUE(isInFront());
  EXPECT_EQ(walk.text("Readout"), "97,79");
  walk.press(Qt::Key_Tab);
  walk.press(Qt::Key_Space);
  EXPECT_EQ(walk.text("Readout"), "50,00") << "by Tab to the key that can be used";
  walk.press(Qt::Key_Escape);
  EXPECT_FALSE(windows.calculator.isOpen);
  walk.turnTo(windows.main);
  open();
  EXPECT_EQ(walk.text("Readout"), "0,");
  walk.close();
}

}  // namespace
}  // namespace ui
