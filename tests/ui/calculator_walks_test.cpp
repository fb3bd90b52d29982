// Walks through the pocket calculator, keys and clicks alone.
#include <gtest/gtest.h>

#include "walk.h"

namespace ui {
namespace {

TEST(Walk, ThePocketCalculatorIsWorkedByMouseAndKeyboardAlike) {
  Shop shop;
  Walk walk(shop);
  const auto& windows = walk.desktop->program().windows;
  const auto open = [&] {
    walk.press(Qt::Key_X, Qt::AltModifier);
    walk.press(Qt::Key_T);
    walk.turnTo(windows.calculator);
  };
  open();
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
  walk.expectBox("Division durch Null", QMessageBox::Ok);
  walk.type("=");
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
