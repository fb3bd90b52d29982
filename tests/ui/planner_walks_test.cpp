// Walks through the planner up to Termine.ini on disk, keys and clicks alone, the clock in the walk's hands.
#include <gtest/gtest.h>

#include <QListView>
#include <QPushButton>
#include <string>

#include "walk.h"

namespace ui {
namespace {

// At five to twelve.
struct PlannerWalk : Walk {
  explicit PlannerWalk(const Premises& premises, const std::function<void(Walk&)>& expectations = {})
      : Walk(premises, expectations) {
    desktop->platform().setClock([this] { return now; });
  }
  void openPlanner() {
    turnTo(desktop->program().windows.main);
    press(Qt::Key_X, Qt::AltModifier);
    press(Qt::Key_N);
    turnTo(desktop->program().windows.planner);
  }

  base::DateTime now{.year = 2030, .month = 2, .day = 28, .hour = 11, .minute = 55, .second = 1};
};

TEST(Walk, AnAppointmentIsEnteredWatchedAndAnnounced) {
  const Shop shop;
  PlannerWalk walk(shop);
  walk.openPlanner();
  EXPECT_EQ(Walk::focus(), "TerminText");
  for (const char* const next :
       {"Erzeugen", "qt_tabwidget_tabbar", "Liste", "cmdMove", "loeschen", "Command4", "Check_Beep", "Check_Start",
        "cmdPrint", "cmdVorschau", "cmdPDF", "Ende", "Tage", "Monate"}) {
    walk.press(Qt::Key_Tab);
    EXPECT_EQ(Walk::focus(), next);
  }
  EXPECT_EQ(walk.widget<QListView>("Liste").actions(), walk.widget<QListView>("List1").actions());
  EXPECT_EQ(walk.text("Tage") + walk.text("Monate") + walk.text("Jahre") + walk.text("Stunden"), "2802203011");
  walk.fill("Minuten", "75");
  EXPECT_EQ(walk.text("Minuten"), "59");
  walk.fill("Minuten", "7x");
  EXPECT_EQ(walk.beeps, 1);
  walk.fill("Jahre", "85");
  EXPECT_EQ(walk.text("Minuten"), "07") << "left";
  walk.fill("Tage", "29");
  EXPECT_EQ(walk.text("Jahre"), "1990");
  walk.fill("Jahre", "2030");
  walk.fill("TerminText", "Schild „Café“ liefern");
  walk.expectBox("     Falsches Datum!", QMessageBox::Ok);
  walk.press(Qt::Key_Return);
  EXPECT_EQ(Walk::focus(), "Tage");
  walk.fill("Tage", "28");
  walk.fill("Stunden", "12");
  walk.click("Erzeugen");
  EXPECT_EQ(Walk::focus() + walk.text("TerminText"), "TerminText");
  EXPECT_EQ(shop.file("Termine.ini"), "");
  QWidget& rows = *walk.widget<QListView>("Liste").viewport();
  QTest::mouseClick(&rows, Qt::LeftButton, {}, {20, 5});
  QTest::mouseDClick(&rows, Qt::LeftButton, {}, {20, 5});
  walk.settle();
  EXPECT_EQ(walk.text("TerminText"), "Schild „Café“ liefern");
  EXPECT_TRUE(walk.widget<QWidget>("lblHinweis").isVisible());
  walk.click("Erzeugen");
  walk.whenAsked([&](QDialog& dialog) { chooseFile(dialog, QString::fromStdString(shop.directory.path("T.pdf"))); });
  walk.click("cmdPDF");
  EXPECT_TRUE(shop.directory.read("T.pdf").starts_with("%PDF-"));
  walk.widget<QListView>("Liste").setFocus();
  walk.press(Qt::Key_Return);
  EXPECT_EQ(walk.text("TerminText"), "Schild „Café“ liefern") << "by its key";
  walk.press(Qt::Key_Return);
  walk.click("Check_Beep");
  walk.press(Qt::Key_Escape);
  const std::string kept = "0=28.02.2030   12:07       Schild „Café“ liefern\r\n";
  EXPECT_EQ(shop.file("Termine.ini"), "[Termine]\r\n" + kept);
  EXPECT_NE(shop.userStore().find("AlarmAktiv=1"), std::string::npos);

  walk.turnTo(walk.desktop->program().windows.main);
  EXPECT_TRUE(walk.widget<QWidget>("imgTimer").isVisible());
  walk.type("ab");
  auto& timer = walk.desktop->program().windows.planner.Timer1;
  walk.desktop->run([&] { timer.intervalMilliseconds = 1; });
  walk.whenAsked([&](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLabel*>("lblTermin")->text().toStdString(), "Termin am 28.02.2030 um 12:07 Uhr");
    EXPECT_EQ(dialog.windowTitle().left(26).toStdString(), "Erinnerung am 28.02.2030 u");
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    for (const Qt::Key typed : {Qt::Key_A, Qt::Key_Space}) QTest::keyClick(dialog.focusWidget(), typed);
    EXPECT_TRUE(dialog.isVisible()) << "in the middle of a text";
    QTest::qWait(1100);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible()) << "after a pause";
  });
  walk.now.hour = 12, walk.now.minute = 7;
  EXPECT_TRUE(QTest::qWaitFor([&] { return shop.file("Termine.ini") == "[TermineAlt]\r\n" + kept; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !walk.widget<QWidget>("imgTimer").isVisible(); }));
  walk.leave();
}

TEST(Walk, ThePlannerAsksAtTheEndAndChecksAtTheNextStart) {
  const Shop shop;
  {
    PlannerWalk walk(shop);
    walk.openPlanner();
    walk.fill("Jahre", "2004");
    walk.fill("TerminText", "alt");
    walk.click("Erzeugen");
    walk.fill("TerminText", "neu");
    walk.click("Check_Start");
    walk.fill("TerminText", QString(5000, 'W'));
    walk.whenAsked([](QDialog& dialog) {
      EXPECT_LT(dialog.height(), 700);
      EXPECT_TRUE(dynamic_cast<QMessageBox&>(dialog).text().endsWith("hinzugefügt, möchten Sie ihn verwerfen?"));
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    walk.click("Ende");
    walk.fill("TerminText", "neu");
    walk.expectBox("Sie haben den Termin \"neu\" nicht hinzugefügt, möchten Sie ihn verwerfen?", QMessageBox::No);
    QMetaObject::invokeMethod(&walk.desktop->mainForm(), &QWidget::close, Qt::QueuedConnection);
    EXPECT_FALSE(QTest::qWaitFor([&] { return walk.desktop->hasEnded(); }, 100));
    walk.expectBox("nicht hinzugefügt", QMessageBox::Yes);
    walk.close();
  }
  PlannerWalk walk(shop,
                   [](Walk& before) { before.expectBox("Sie haben einen Termin versäumt:\nalt", QMessageBox::Ok); });
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return shop.file("Termine.ini") == "[TermineAlt]\r\n0=28.02.2004   11:55       alt\r\n"; }));
  walk.close();
}

}  // namespace
}  // namespace ui
