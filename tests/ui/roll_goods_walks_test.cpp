// A walk through the roll goods, keys and clicks alone, up to the file and the text container.
#include <gtest/gtest.h>

#include <string>

#include "walk.h"

namespace ui {
namespace {

TEST(Walk, RollGoodsArePricedKeyByKeyAndNotedInTheContainer) {
  const Shop shop;
  Walk walk(shop);
  const auto result = [&] { return walk.text("lblPreis") + " " + walk.text("lblPBrutto"); };
  walk.press(Qt::Key_X, Qt::AltModifier);
  walk.press(Qt::Key_W);
  auto& window = walk.widget<QWidget>("frmVoll");
  ASSERT_TRUE(window.isVisible());
  QApplication::setActiveWindow(&window);
  EXPECT_EQ(Walk::focus() + result(), "txtVersalie0,00 EUR 0,00 EUR");
  walk.type("Matt");
  walk.press(Qt::Key_Return);
  walk.type("12");
  walk.press(Qt::Key_Return);
  EXPECT_EQ(result(), "12,00 EUR 13,92 EUR");
  walk.click("Option2");
  walk.fill("txtHöhe", "100");
  walk.fill("txtBreite", "0,5");
  EXPECT_EQ(walk.text("txtBreite") + " " + result(), "0.5 0,06 EUR 0,07 EUR");
  walk.fill("txtBreite", "50");
  walk.press(Qt::Key_Tab);
  walk.type("2");
  EXPECT_EQ(result(), "12,00 EUR 13,92 EUR");
  walk.fill("txtBreite", "0.");
  EXPECT_EQ(result(), "12,00 EUR 13,92 EUR") << "not yet";
  walk.click("cmdNotiz");
  EXPECT_EQ(walk.text("txtBreite") + " " + result(), "1.00 0,24 EUR 0,28 EUR");
  EXPECT_NE(walk.desktop->program().windows.container.rtfTextC.plainText().find("100 * 1.00 cm\r\n"),
            std::string::npos);
  walk.click("cmdContainerLook");
  EXPECT_TRUE(walk.desktop->program().windows.container.isOpen);
  walk.click("Command2");
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(shop.file("Tessik.pdb"),
            "[Versalien]\r\n0=20\r\n1=50\r\n[Preise]\r\n0=1,00\r\n1=2,00\r\n"
            "[Folien]\r\n0=Matt\r\n[FPreise]\r\n0=12.00 EUR\r\n");
  walk.expectBox("Text-Container", QMessageBox::No);
  walk.close();
}

}  // namespace
}  // namespace ui
