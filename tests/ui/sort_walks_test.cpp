// Walks through sorting and the removal of blank lines, keys and clicks alone.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <string>

#include "walk.h"

namespace ui {
namespace {

// A letter of the menu of extras.
void extra(Walk& walk, Qt::Key letter) {
  walk.press(Qt::Key_X, Qt::AltModifier);
  walk.press(letter);
}

void sortByEnter(QDialog& dialog) {
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&dialog] { return !dialog.isVisible(); }));
}

TEST(Walk, LinesAreSortedByKeysAndOneUndoBringsTextAndFormatsBack) {
  const Shop shop;
  Walk walk(shop);
  walk.press(Qt::Key_B, Qt::ControlModifier);
  for (const char* const line : {"b", "", "Z"}) walk.type(line), walk.press(Qt::Key_Return);
  walk.type("a");
  const QString before = walk.widget<QTextEdit>("rtfText").toHtml();
  walk.whenAsked(sortByEnter);
  extra(walk, Qt::Key_S);
  EXPECT_EQ(walk.text("rtfText") + " " + walk.text("lblPreisNettoGesamt"), "Z\na\nb 3,00 EUR");
  walk.press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(walk.widget<QTextEdit>("rtfText").toHtml(), before);
  walk.whenAsked([](QDialog& dialog) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Right);
    sortByEnter(dialog);
  });
  extra(walk, Qt::Key_S);
  EXPECT_EQ(walk.text("rtfText"), "b\na\nZ");
  walk.press(Qt::Key_Return);
  walk.type(" ");
  walk.press(Qt::Key_Return);
  extra(walk, Qt::Key_L);
  EXPECT_EQ(walk.text("rtfText") + " " + walk.text("lblPreisNettoGesamt"), "b\na\nZ 3,00 EUR");
  EXPECT_EQ(Walk::focus(), "rtfText");
  walk.leave();
}

// Low and high lines in turn are what the sort is slowest at: it is still at it when Esc comes.
TEST(Walk, EscEndsASortAndTheDialogStaysUntilTheNextEsc) {
  constexpr int kLines = 1 << 15;
  const Shop shop;
  Walk walk(shop);
  std::string lines;
  for (int i = 0; i < kLines; ++i) lines += std::to_string(2 * kLines + i / 2 + i % 2 * kLines) + "\n";
  walk.desktop->program().windows.main.rtfText.setPlainText(lines);
  walk.type("1");
  const std::string before = walk.text("rtfText");
  walk.whenAsked([](QDialog& dialog) {
    const auto press = [&dialog](bool isHeld) {
      QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), isHeld);
      QApplication::sendEvent(&dialog, &escape);
    };
    const QString invitation = dialog.findChild<QLabel*>("lblInfo")->text();
    QTimer::singleShot(1, &dialog, [&dialog, press] {
      EXPECT_EQ(dialog.findChild<QLabel*>("lblInfo")->text(), "Sortiere ... \nAbbruch mit Esc");
      press(false);
    });
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdGo"), Qt::LeftButton);
    press(true);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.findChild<QLabel*>("lblInfo")->text(), invitation);
    EXPECT_EQ(dialog.focusWidget()->objectName(), "cmdGo");
    EXPECT_TRUE(dialog.findChild<QPushButton*>("cmdExit")->isEnabled());
    press(false);
  });
  extra(walk, Qt::Key_S);
  EXPECT_EQ(walk.text("rtfText"), before);
  walk.leave();
}

}  // namespace
}  // namespace ui
