// Walks through the options dialog, keys and clicks alone, up to the settings on disk.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QDir>
#include <QListView>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <string>

#include "ui/utf8.h"
#include "walk.h"

namespace ui {
namespace {

// The names on one side of the dialog, and the row of its card.
struct Side {
  int card;
  const char* list;
  const char* amount;
  const char* remark;
  const char* percent;
  const char* add;
  const char* remove;
};

constexpr Side kSurcharges = {0, "cboAufpreis", "txtEingabeAR", "txtToolTip", "optAPro", "cmdAHin", "cmdAEntfernen"};
constexpr Side kDiscounts = {1, "cboRabatt", "txtEingabeRR", "txtToolTip2", "optRPro", "cmdRHin", "cmdREntfernen"};

// The dialog that is open, and the hands on it.
struct OptionsWalk {
  QDialog& dialog;

  template <typename Widget = QWidget>
  Widget& widget(const char* name) const {
    return *dialog.findChild<Widget*>(QString::fromUtf8(name));
  }
  std::string text(const char* name) const { return toUtf8(widget(name).property("text").toString()); }
  void click(const char* name) const {
    // Without a window manager nobody brings the dialog back to the front when a box before it has gone.
    if (QApplication::activeWindow() == nullptr) QApplication::setActiveWindow(&dialog);
    QTest::mouseClick(&widget(name), Qt::LeftButton, {}, {8, 8});
  }
  void fill(const char* name, const QString& text) const {
    click(name);
    QTest::keySequence(&widget(name), QKeySequence::SelectAll);
    QTest::keyClicks(&widget(name), text);
  }
  void onFirstRow(const Side& side, void (*act)(QWidget*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int)) const {
    auto& list = widget<QListView>(side.list);
    act(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(1, 0)).center(), -1);
  }
  std::string rows(const Side& side) const {
    const auto& model = *widget<QListView>(side.list).model();
    QString rows;
    for (int row = 1; row < model.rowCount(); ++row) rows += model.index(row, 0).data().toString() + "|";
    return toUtf8(rows);
  }
};

void workSide(const OptionsWalk& hands, const Side& side) {
  auto& cards = *hands.widget<QTabWidget>("fixKarten").tabBar();
  QTest::mouseClick(&cards, Qt::LeftButton, {}, cards.tabRect(side.card).center());
  // Typed by keys alone: Enter goes on to the remark, and from there adds and comes back.
  hands.fill(side.amount, "2.5");
  QTest::keyClick(&hands.widget(side.amount), Qt::Key_Return);
  EXPECT_TRUE(hands.widget(side.remark).hasFocus());
  QTest::keyClicks(&hands.widget(side.remark), "a=b");
  QTest::keyClick(&hands.widget(side.remark), Qt::Key_Return);
  EXPECT_TRUE(hands.widget(side.amount).hasFocus());
  hands.click(side.percent);
  hands.fill(side.amount, "7");
  QApplication::clipboard()->setText(QString(149, 'x') + "\n" + QString(150, 'y'));
  hands.widget(side.remark).setFocus(Qt::TabFocusReason);
  QTest::keySequence(&hands.widget(side.remark), QKeySequence::Paste);
  QCoreApplication::processEvents();
  QTest::keyClick(hands.dialog.windowHandle(), Qt::Key_H, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return hands.text(side.amount).empty(); }));
  hands.fill(side.amount, "9");
  hands.click(side.add);
  // The newest goes by the button, the first row by the key, which leaves its slot to the row behind it.
  hands.click(side.remove);
  hands.onFirstRow(side, QTest::mouseClick);
  QTest::keyClick(&hands.widget(side.list), Qt::Key_Delete);
  // A double click picks, the change is saved.
  hands.onFirstRow(side, QTest::mouseClick);
  hands.onFirstRow(side, QTest::mouseDClick);
  EXPECT_EQ(hands.text(side.add), "&Ändern");
  QTest::keyClicks(&hands.widget(side.amount), "4");
  hands.click(side.add);
}

void openOptions(Walk& walk) {
  walk.press(Qt::Key_X, Qt::AltModifier);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_O);
  walk.settle();
}

TEST(Walk, BothListsOfTheOptionsAreEditedUpToTheFilesAndTheBoxesOfTheMainWindow) {
  const Shop shop;
  shop.write("Ostrowerk.ini",
             "[Einstellungen]\r\nMwst=16\r\nMaßeinheit=mm\r\nIndex1=3\r\nIndex2=3\r\nTVorn=0\r\nLZ=1\r\nSnd=x\r\n");
  {
    Walk walk(shop);
    walk.type("Huber");
    walk.choose("cboRabatt", 2);
    walk.whenAsked([](QDialog& dialog) {
      const OptionsWalk hands{dialog};
      for (const Side& side : {kSurcharges, kDiscounts}) workSide(hands, side);
      hands.fill("txtMwst", "7");
      hands.fill("txtRGF", "33");
      QTest::keyClick(&hands.widget("txtFirmaAnschrift"), Qt::Key_Return);
      QTest::keyClicks(&hands.widget("txtFirmaAnschrift"), "Ulm");
      hands.click("cmdOK");
    });
    openOptions(walk);
    EXPECT_EQ(walk.text("cboRabatt") + " " + walk.text("lblMwstSatz"), "2 % 7 %");
    walk.leave();
  }
  Walk again(shop);
  again.whenAsked([](QDialog& dialog) {
    const OptionsWalk hands{dialog};
    const std::string added = "2.50 EUR -> a=b|7 % -> " + std::string(149, 'x') + " " + std::string(150, 'y') + "|";
    EXPECT_EQ(hands.rows(kSurcharges), "4 % -> Eil|5.00 EUR -> Weg|" + added);
    EXPECT_EQ(hands.rows(kDiscounts), "4 % -> Stamm|2 % -> Bar|" + added);
    EXPECT_EQ(toUtf8(hands.widget<QPlainTextEdit>("txtFirmaAnschrift").toPlainText()), "\nUlm");
    EXPECT_EQ(hands.text("txtRGF"), "33");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  openOptions(again);
  again.close();
}

TEST(Walk, ListsAreClearedAndEverythingIsResetOnlyWhenItIsAgreed) {
  const Shop shop;
  shop.directory.write("Glocke.wav", "");
  QDir::setCurrent(QString::fromStdString(shop.directory.path("")));
  Walk walk(shop);
  const auto& settings = walk.desktop->program().settings;
  walk.whenAsked([&](QDialog& dialog) {
    const OptionsWalk hands{dialog};
    walk.expectBox("alle Werte entfernen", QMessageBox::No);
    hands.click("cmdClearA");
    EXPECT_EQ(hands.rows(kSurcharges), "10 % -> Eil|5.00 EUR -> Weg|");
    walk.expectBox("alle Werte entfernen", QMessageBox::Yes);
    hands.click("cmdClearA");
    EXPECT_EQ(hands.rows(kSurcharges) + hands.text("Label11"), "1/100");
    hands.fill("txtMwst", "0");
    QTest::keyClick(&hands.widget("txtMwst"), Qt::Key_Tab);
    EXPECT_TRUE(hands.widget("txtMwst").hasFocus() && hands.widget("lblHinweis").isVisible());
    walk.expectBox("alle Werte zurücksetzen", QMessageBox::Yes);
    hands.click("cmdAbbrechen");
    EXPECT_EQ(hands.rows(kDiscounts) + hands.text("txtMwst"), "19");
    walk.whenAsked([](QDialog& files) { QTest::keyClick(&files, Qt::Key_Escape); });
    hands.click("Command1");
    EXPECT_EQ(hands.text("lblSound"), "x.wav");
    walk.whenAsked([](QDialog& files) { chooseFile(files, "Glocke.wav"); });
    hands.click("Command1");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  openOptions(walk);
  EXPECT_EQ(walk.text("cboAufpreis"), "0.00 EUR");
  EXPECT_EQ(settings.rates.vatPercent, 19);
  walk.close();
  EXPECT_EQ(shop.file("Tessik.ini").find("%"), std::string::npos);
  EXPECT_NE(shop.userStore().find("SndPfad=" + shop.directory.path("Glocke.wav")), std::string::npos);
}

}  // namespace
}  // namespace ui
