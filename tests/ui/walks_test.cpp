// Walks from the start of the program over an order to its end, keys and clicks alone: what runs here is what people
// run.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QListView>
#include <QSplitter>
#include <filesystem>
#include <string>

#include "walk.h"

namespace ui {
namespace {

TEST(Walk, AFirstStartAsksNothingAndExitEndsItLikeTheCloseButton) {
  const Premises premises;
  Walk walk(premises);
  walk.press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return walk.desktop->hasEnded(); }));
  EXPECT_NE(premises.file("Ostrowerk.ini").find("Mwst=16"), std::string::npos);
  EXPECT_NE(premises.userStore().find("Version=1.4"), std::string::npos);
}

TEST(Walk, AnOrderIsPricedKeyByKeyAndTheSettingsOutliveTheProgram) {
  const Shop shop;
  QList<int> parts;
  {
    Walk walk(shop);
    walk.desktop->mainForm().resize(1600, 700);
    EXPECT_EQ(Walk::focus(), "rtfText");
    walk.type("Bäckerei");
    EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "8,00 EUR");
    walk.choose("cboBuchstabenhöhe", 1);
    EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "16,00 EUR");
    walk.fill("txtStück", "2,5x");
    EXPECT_EQ(walk.text("txtStück"), "25");
    EXPECT_EQ(walk.beeps, 2);
    EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "400,00 EUR");
    walk.fill("txtStück", "3");
    EXPECT_EQ(walk.text("lblBruttoGesamt"), "55,68 EUR");
    const auto& typefaces = walk.widget<QComboBox>("cboFontSelect");
    EXPECT_GT(typefaces.count(), 0);
    EXPECT_TRUE(typefaces.findText("Arial", Qt::MatchStartsWith) >= 0 || !QFont::substitutes("Arial").isEmpty());
    walk.press(Qt::Key_C, Qt::AltModifier);
    walk.type("?");
    walk.press(Qt::Key_Return);
    EXPECT_EQ(Walk::focus(), "rtfText");
    auto& column = walk.widget<QSplitter>("fixTeiler");
    column.setSizes({column.sizes()[0] - 50, column.sizes()[1] + 50});
    parts = column.sizes();
    walk.leave();
  }
  EXPECT_NE(shop.file("Ostrowerk.ini").find("Index1=2\r\n"), std::string::npos);
  EXPECT_NE(shop.file("Tessik.ini").find("[RabatteTip2]\r\nStamm\r\nBar\r\n"), std::string::npos);
  Walk again(shop);
  EXPECT_EQ(again.widget<QSplitter>("fixTeiler").sizes(), parts);
  again.type("AB");
  EXPECT_EQ(again.text("lblPreisNettoGesamt"), "2,00 EUR");
  again.press(Qt::Key_Home);
  QTest::keyPress(again.desktop->mainForm().windowHandle(), Qt::Key_Delete);  // and not let go
  EXPECT_EQ(again.text("lblPreisNettoGesamt"), "1,00 EUR");
  again.leave();
}

// 8 characters at 10 pieces of 1.00: a net price of 80.00.
TEST(Walk, TheFourAmountBoxesTakeWhatTheyMayAndKeepInStep) {
  const Shop shop;
  Walk walk(shop);
  EXPECT_FALSE(walk.enabled("txtProzent") || walk.enabled("cboAufpreis") || walk.enabled("cmdRabatteListe"));
  walk.type("Bäckerei");
  EXPECT_TRUE(walk.enabled("txtProzent") && walk.enabled("cboAufpreis") && walk.enabled("cmdRabatteListe"));
  walk.fill("txtStück", "10");
  walk.fill("txtProzent", "1-2,5%a");
  EXPECT_EQ(walk.text("txtProzent") + " " + walk.text("txtProzentDM"), "12.5 10.00");
  EXPECT_EQ(walk.beeps, 3);
  EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "90,00 EUR");
  walk.press(Qt::Key_Return);
  EXPECT_EQ(Walk::focus(), "txtRabatt");
  QApplication::clipboard()->setText("2,5 %");
  walk.press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(walk.text("txtRabatt") + " " + walk.text("txtRabattDM"), "2.5 2.00");
  walk.press(Qt::Key_Enter);
  EXPECT_EQ(Walk::focus(), "txtProzentDM");
  walk.type("20");
  EXPECT_EQ(walk.text("txtProzent") + " " + walk.text("lblPreisNettoGesamt"), "25.00 98,00 EUR");
  walk.press(Qt::Key_Return);
  EXPECT_EQ(Walk::focus(), "txtRabattDM");
  walk.press(Qt::Key_Backspace);
  EXPECT_EQ(walk.text("txtRabattDM") + " " + walk.text("txtRabatt"), "0.00 0.00");
  walk.press(Qt::Key_Return);
  EXPECT_EQ(Walk::focus(), "txtProzent");

  // The lettering grows; the same percentage typed over itself is priced anew.
  walk.fill("txtProzent", "5");
  walk.fill("rtfText", "Bäckereien");
  walk.fill("txtProzent", "5");
  EXPECT_EQ(walk.text("txtProzentDM"), "5.00");
  walk.leave();
}

TEST(Walk, SurchargesAndDiscountsAreChosenFromTheirListsAndPickers) {
  const Shop shop;
  Walk walk(shop);
  walk.type("Bäckerei");
  walk.choose("cboAufpreis", 1);
  EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "8,80 EUR");
  EXPECT_EQ(walk.widget<QWidget>("cboAufpreis").toolTip(), "10 % (Eil)");

  const auto rowOf = [](QDialog& dialog, int row) {
    auto* const list = dialog.findChild<QListView*>("lstAuswahl");
    return std::pair(list, list->visualRect(list->model()->index(row, 0)).center());
  };
  walk.whenAsked([&](QDialog& picker) {
    EXPECT_EQ(picker.windowTitle(), "Auswahl Rabatte");
    const auto [list, place] = rowOf(picker, 1);
    EXPECT_EQ(list->currentIndex().row(), 0);
    EXPECT_EQ(list->model()->index(1, 0).data().toString(), "3 % -> Stamm");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
  });
  walk.click("cmdRabatteListe");
  EXPECT_EQ(walk.text("cboRabatt") + " " + walk.text("lblPreisNettoGesamt"), "3 % 8,56 EUR");
  EXPECT_EQ(walk.text("lblcboChange1") + walk.text("lblcboChange2"), "21");

  const std::function<void(QDialog&)> leavings[] = {
      [](QDialog& picker) { QTest::keyClick(picker.focusWidget(), Qt::Key_Escape); },
      [&](QDialog& picker) { QTest::mouseClick(rowOf(picker, 0).first->viewport(), Qt::RightButton); },
      [](QDialog& picker) { picker.close(); },
  };
  for (const auto& leave : leavings) {
    walk.whenAsked(leave);
    walk.click("cmdAufpreisListe");
    EXPECT_EQ(walk.text("cboAufpreis") + " " + walk.text("lblPreisNettoGesamt"), "10 % 8,56 EUR");
  }
  walk.whenAsked([](QDialog& picker) {
    QTest::keyClick(picker.focusWidget(), Qt::Key_Down);
    QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
  });
  walk.click("cmdAufpreisListe");
  EXPECT_EQ(walk.text("cboAufpreis"), "5.00 EUR");
  walk.leave();
}

TEST(Walk, ARefusedSettingsFileEndsTheProgramBeforeItsWindow) {
  const Shop shop;
  std::filesystem::remove(shop.data + "/Tessik.ini");
  QTimer::singleShot(0, [] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    QTest::keyClick(box, Qt::Key_Escape);
  });
  Desktop desktop({.path = shop.data});
  EXPECT_EQ(desktop.load(), lifecycle::StartUp::ends);
  EXPECT_FALSE(desktop.mainForm().isVisible());
  EXPECT_FALSE(std::filesystem::exists(shop.data + "/Tessik.ini"));
}

// The end that the desktop demands comes while a dialog is open: the dialog goes, its procedure comes to its end, and
// what the session leaves behind is written.
TEST(Walk, TheDesktopEndsTheProgramBehindAnOpenDialog) {
  const Shop shop;
  Walk walk(shop);
  walk.type("AB");
  base::Window& asking = walk.desktop->program().windows.picker;
  walk.desktop->program().wiring.on(asking, base::Event::closing, [&] { asking.keepsOpen = true; });
  walk.whenAsked([&](QDialog& picker) {
    walk.desktop->end(Desktop::Manner::quietly);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picker.isVisible(); }));
  });
  walk.click("cmdAufpreisListe");
  EXPECT_TRUE(QTest::qWaitFor([&] { return walk.desktop->hasEnded(); }));
  EXPECT_NE(shop.file("Wiederherstellung-" + std::to_string(::getpid()) + ".rtf").find("AB"), std::string::npos);
  EXPECT_NE(shop.userStore().find("SndPfad="), std::string::npos);
}

TEST(Walk, NeitherAnOpenListNorARunningProcedureKeepsTheProgramFromItsEnd) {
  const Shop shop;
  const auto ended = [](const Walk& walk) { return QTest::qWaitFor([&] { return walk.desktop->hasEnded(); }); };
  {
    Walk walk(shop);
    walk.widget<QComboBox>("cboBuchstabenhöhe").showPopup();
    walk.desktop->end(Desktop::Manner::asking);
    EXPECT_TRUE(ended(walk));
  }
  Walk walk(shop);
  walk.desktop->run([&] {
    walk.desktop->end(Desktop::Manner::asking);
    QCoreApplication::processEvents();
  });
  EXPECT_TRUE(ended(walk));
}

TEST(Walk, WhatIsTypedDuringLongWorkIsDroppedAndNothingBehindIt) {
  const Shop shop;
  Walk walk(shop);
  base::Platform& platform = walk.desktop->platform();
  auto* const paper = &walk.widget<QWidget>("rtfText");
  const auto typeAhead = [&](char key) {
    QCoreApplication::postEvent(paper, new QKeyEvent(QEvent::KeyPress, 0, {}, QString(QLatin1Char(key))));
  };
  walk.desktop->run([&] {
    platform.setHourglass(base::Hourglass::on);
    typeAhead('a');
    platform.setHourglass(base::Hourglass::off);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    typeAhead('b');
    QCoreApplication::processEvents();
  });
  EXPECT_EQ(walk.text("rtfText"), "b");
  walk.leave();
}

}  // namespace
}  // namespace ui
