// Walks through the running sum and the offer note, keys and clicks alone.
#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QListView>
#include <QToolBar>
#include <string>

#include "walk.h"

namespace ui {
namespace {

struct SumWalk : Walk {
  explicit SumWalk(const Premises& premises) : Walk(premises) { desktop->mainForm().resize(1200, 700); }

  /// The entries, marked ones with a star, and their sum.
  std::string sum() {
    std::string entries;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      const QModelIndex index = list.model()->index(row, 0);
      entries += index.data().toString().toStdString() + (list.selectionModel()->isSelected(index) ? "* " : " ");
    }
    return entries + "= " + text("lblRCalc");
  }
  void clickEntry(int row, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(list.viewport(), button, modifiers, list.visualRect(list.model()->index(row, 0)).center());
    settle();
  }
  void clickInBar(const char* name) {
    auto* const action = desktop->mainForm().findChild<QAction*>(name);
    QTest::mouseClick(widget<QToolBar>("fixLeiste").widgetForAction(action), Qt::LeftButton);
    settle();
  }

  QListView& list = widget<QListView>("cboCalc");
};

TEST(Walk, SumsAreCollectedMarkedAddedToThePriceAndRemoved) {
  const Shop shop;
  SumWalk walk(shop);
  walk.type("Bäckerei");
  walk.click("cmdAdd");
  walk.choose("cboAufpreis", 1);
  walk.click("cmdAdd");
  walk.fill("txtAddPerHand", "-2,5x");
  walk.press(Qt::Key_Return);
  EXPECT_EQ(walk.sum(), "8.00 EUR* 9.60 EUR* -2.50 EUR = 15,10 EUR");
  walk.clickEntry(0, Qt::LeftButton, Qt::ControlModifier);
  walk.clickEntry(2, Qt::LeftButton, Qt::ControlModifier);
  walk.fill("txtStück", "3");
  walk.click("cmdClear");
  EXPECT_EQ(walk.text("txtStück") + " " + walk.text("lblStückp"), "1 15,10 EUR");
  walk.click("cmdLöschen");
  EXPECT_EQ(walk.text("lblPNettoAuf"), "8,80 EUR");
  for (const auto& [letter, price] : {std::pair(Qt::Key_D, "15,10 EUR"), {Qt::Key_A, "8,00 EUR"}}) {
    walk.press(Qt::Key_N, Qt::AltModifier);
    walk.press(letter);
    EXPECT_EQ(walk.text("lblStückp"), price);
  }

  walk.clickEntry(0, Qt::LeftButton, Qt::ControlModifier);
  walk.clickEntry(2, Qt::RightButton);
  walk.press(Qt::Key_E);
  const std::string rest = "9.60 EUR* -2.50 EUR* = 7,10 EUR";
  EXPECT_EQ(Walk::focus() + " " + walk.sum(), "rtfText " + rest);
  walk.list.setFocus(Qt::TabFocusReason);
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
  QApplication::sendEvent(&walk.list, &menuKey);
  walk.press(Qt::Key_Escape);
  EXPECT_EQ(Walk::focus(), "rtfText");

  walk.fill("rtfText", " ");
  walk.press(Qt::Key_Backspace);
  for (const char* const idle : {"cmdAdd", "cmdSub"}) walk.click(idle);
  EXPECT_EQ(walk.sum(), rest) << "at a net total of zero";
  for (const auto& [answer, left] : {std::pair(QMessageBox::No, rest), {QMessageBox::Yes, "= 0,00 EUR"}}) {
    walk.expectBox("Sind Sie sicher das Sie alle Werte aus dem Rechner entfernen möchten?", answer);
    walk.press(Qt::Key_N, Qt::AltModifier);
    walk.press(Qt::Key_I);
    EXPECT_EQ(walk.sum(), left);
  }
  walk.click("cmdDestroy");
  EXPECT_EQ(walk.beeps, 3) << "a refused letter, two questions";
  QTest::mouseMove(&walk.widget<QWidget>("lblRCalc"), {3, 3});
  walk.settle();
  EXPECT_EQ(walk.widget<QWidget>("lblRCalc").toolTip(), "Gesamtsumme des Rechners: 0,00 EUR");
  walk.close();
}

TEST(Walk, NotesGatherInTheContainerUntilItIsEmptied) {
  const Shop shop;
  SumWalk walk(shop);
  const auto& container = walk.desktop->program().windows.container;
  walk.type("Brot Eis");
  walk.click("txtStück");
  walk.clickInBar("cmdNotiz");
  EXPECT_EQ(Walk::focus(), "rtfText");
  const std::string whole = container.rtfTextC.plainText();
  walk.press(Qt::Key_Left, Qt::ShiftModifier);
  walk.press(Qt::Key_O, Qt::AltModifier);
  walk.press(Qt::Key_T);
  const std::string both = container.rtfTextC.plainText();
  EXPECT_EQ(both.find(whole + "\r\nZu Kalkulierender Text: \r\n\r\n\"s\"\r\n"), 0U);
  for (const auto& [answer, left] : {std::pair(QMessageBox::No, both), {QMessageBox::Yes, ""}}) {
    walk.expectBox("Sind Sie sicher das Sie den Text-Container löschen möchten?", answer);
    walk.press(Qt::Key_O, Qt::AltModifier);
    walk.press(Qt::Key_L);
    EXPECT_EQ(container.rtfTextC.plainText(), left);
    EXPECT_EQ(container.mnuMarkAll.enabled, left != "");
  }
  walk.clickInBar("cmdContainerLook");
  EXPECT_TRUE(container.isOpen);
  walk.leave();
}

}  // namespace
}  // namespace ui
