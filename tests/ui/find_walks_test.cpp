// Walks through the bar of find and replace, keys and clicks alone.
#include <gtest/gtest.h>

#include <QTextEdit>
#include <string>

#include "walk.h"

namespace ui {
namespace {

std::string selected(Walk& walk) { return walk.widget<QTextEdit>("rtfText").textCursor().selectedText().toStdString(); }

TEST(Walk, TextIsFoundReplacedAndBroughtBackByKeysAndTheBarFollowsIt) {
  const Shop shop;
  Walk walk(shop);
  walk.type("Auto Haus auto");
  EXPECT_FALSE(walk.widget<QWidget>("pnlSuche").isVisible());
  walk.press(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  walk.press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Walk::focus() + " " + walk.text("txtSuche") + " " + walk.text("lblTreffer"), "txtSuche auto 2 von 2");
  walk.type("AU");
  EXPECT_EQ(walk.text("txtSuche") + " " + walk.text("lblTreffer"), "AU 3 Treffer");
  walk.press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(walk.text("lblTreffer") + " " + selected(walk), "2 von 3 au");
  walk.press(Qt::Key_Return);
  EXPECT_EQ(walk.text("lblTreffer") + " " + walk.text("lblPreisNettoGesamt"), "3 von 3 2,00 EUR");
  walk.press(Qt::Key_Return);
  EXPECT_EQ(walk.text("lblSuchangebot"), "Ende des Textes – F3 sucht vom Anfang weiter");
  walk.press(Qt::Key_F3);
  EXPECT_EQ(walk.text("lblTreffer") + " " + selected(walk), "1 von 3 Au");
  walk.press(Qt::Key_Escape);
  EXPECT_FALSE(walk.widget<QWidget>("pnlSuche").isVisible());
  EXPECT_EQ(Walk::focus() + " " + selected(walk), "rtfText Au");
  walk.press(Qt::Key_F3);
  walk.press(Qt::Key_F3);
  walk.press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(walk.widget<QTextEdit>("rtfText").textCursor().selectionStart(), 6);

  walk.press(Qt::Key_H, Qt::ControlModifier);
  walk.type("auto");
  walk.press(Qt::Key_Tab);
  EXPECT_EQ(Walk::focus(), "txtErsetzen");
  walk.type("Rad");
  walk.click("cmdAlleErsetzen");
  EXPECT_EQ(walk.text("rtfText") + ": " + walk.text("lblPreisNettoGesamt"), "Rad Haus Rad: 12,00 EUR");
  EXPECT_EQ(walk.text("lblTreffer") + " " + Walk::focus(), "2 ersetzt txtErsetzen");
  walk.press(Qt::Key_Escape);
  walk.press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(walk.text("rtfText"), "Auto Haus auto");

  // The bar counts by its timer while the document is written in.
  walk.press(Qt::Key_F, Qt::ControlModifier);
  walk.type("a\u0308");
  EXPECT_TRUE(walk.widget<QWidget>("lblKeinTreffer").isVisible());
  walk.click("rtfText");
  walk.type("Bäcker");
  EXPECT_TRUE(QTest::qWaitFor([&] { return walk.text("lblTreffer") == "1 Treffer"; }));
  EXPECT_FALSE(walk.widget<QWidget>("lblKeinTreffer").isVisible());
  walk.leave();
}

}  // namespace
}  // namespace ui
