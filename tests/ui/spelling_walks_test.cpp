// Walks through the spelling check with the installed dictionary, keys and clicks alone.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <functional>
#include <string>
#include <utility>

#include "ui/utf8.h"
#include "walk.h"

namespace ui {
namespace {

void clickIn(QDialog& dialog, const char* button) {
  QTest::mouseClick(dialog.findChild<QPushButton*>(QString::fromLatin1(button)), Qt::LeftButton);
  QCoreApplication::processEvents();
}

TEST(Walk, TheSpellingIsCheckedWordByWordAndOwnWordsAreKept) {
  const Shop shop;
  Walk walk(shop);
  walk.type("BÄKEREI Hubber, Hauptstr. 12a, Strasse und Strasse");
  walk.press(Qt::Key_Home, Qt::ControlModifier);
  walk.whenAsked([](QDialog& dialog) {
    EXPECT_EQ(toUtf8(dialog.windowTitle()), "Rechtschreibung");
    auto& replacement = *dialog.findChild<QLineEdit*>("txtErsetzen");
    EXPECT_EQ(toUtf8(replacement.text()), "BÄCKEREI");
    QTest::keyClick(&replacement, Qt::Key_Return);
    EXPECT_EQ(toUtf8(dialog.findChild<QLabel*>(QStringLiteral("lblStelle"))->text()).substr(0, 20),
              "BÄCKEREI »Hubber«");
    clickIn(dialog, "cmdAufnehmen");
    auto& list = *dialog.findChild<QListView*>(QStringLiteral("lstVorschläge"));
    EXPECT_EQ(toUtf8(list.currentIndex().data().toString()), "Straße");
    QTest::keyClick(&replacement, Qt::Key_Backspace);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_TRUE(dialog.findChild<QPushButton*>("cmdAlleErsetzen")->isEnabled());
    EXPECT_EQ(replacement.text(), list.currentIndex().data().toString());
    QTest::keyClick(&list, Qt::Key_Up);
    clickIn(dialog, "cmdAlleErsetzen");
  });
  walk.expectBox("Die Rechtschreibprüfung ist beendet.", QMessageBox::Ok);
  walk.click("txtStück");
  walk.press(Qt::Key_F7);
  EXPECT_EQ(walk.text("rtfText"), "BÄCKEREI Hubber, Hauptstr. 12a, Straße und Straße");
  EXPECT_EQ(shop.file("Woerter.txt"), "Hubber\n");
  EXPECT_EQ(Walk::focus(), "rtfText");
  walk.press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(walk.text("rtfText"), "BÄCKEREI Hubber, Hauptstr. 12a, Strasse und Strasse");
  walk.leave();
}

// How much of the view is painted in the red of the waves.
int redPixels(Walk& walk) {
  QCoreApplication::processEvents();
  const QImage view = walk.widget<QTextEdit>("rtfText").viewport()->grab().toImage();
  int count = 0;
  for (int y = 0; y < view.height(); ++y) {
    for (int x = 0; x < view.width(); ++x) {
      const QColor pixel = view.pixelColor(x, y);
      if (pixel.red() > 180 && pixel.green() < 80 && pixel.blue() < 80) ++count;
    }
  }
  return count;
}

// Opens the menu of the document at the caret and is at work in it.
void inMenuAtCaret(Walk& walk, const std::function<void(QMenu&)>& act) {
  QTimer::singleShot(0, [act] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    act(*menu);
    menu->close();
  });
  auto& text = walk.widget<QTextEdit>("rtfText");
  QContextMenuEvent wanted(QContextMenuEvent::Keyboard, {}, text.mapToGlobal(QPoint()));
  QApplication::sendEvent(&text, &wanted);
  walk.settle();
}

bool showsWaves(Walk& walk) {
  return QTest::qWaitFor([&] { return redPixels(walk) > 0; }, 3000);
}

TEST(Walk, UnknownWordsAreWavedOnceTheyAreWrittenUnlessTheViewSaysNo) {
  const Shop shop;
  {
    Walk walk(shop);
    walk.type("Haus Bäkerei.");
    QTest::qWait(50);
    EXPECT_EQ(redPixels(walk), 0);
    walk.press(Qt::Key_Backspace);
    walk.type(" ");
    EXPECT_TRUE(showsWaves(walk));
    const std::uint64_t revision = walk.desktop->program().windows.main.rtfText.revision();
    // What the menu of the word offers: the first suggestion by its key, of which one step is taken back.
    walk.press(Qt::Key_Left);
    inMenuAtCaret(walk, [](QMenu& menu) {
      EXPECT_EQ(toUtf8(menu.actions().front()->text()), "Bäckerei");
      QTest::keyClick(&menu, Qt::Key_Down);
      QTest::keyClick(&menu, Qt::Key_Return);
    });
    EXPECT_EQ(walk.text("rtfText"), "Haus Bäckerei ");
    EXPECT_GT(walk.desktop->program().windows.main.rtfText.revision(), revision);
    EXPECT_EQ(redPixels(walk), 0);
    walk.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(showsWaves(walk));
    walk.desktop->mainForm().findChild<QAction*>(QStringLiteral("fixWellen"))->trigger();
    EXPECT_EQ(redPixels(walk), 0);
    walk.desktop->mainForm().findChild<QAction*>(QStringLiteral("fixWellen"))->trigger();
    for (const auto& [letter, word] : {std::pair(Qt::Key_I, "Bäkerei "), {Qt::Key_G, "Söhme "}}) {
      walk.fill("rtfText", word);
      EXPECT_TRUE(showsWaves(walk));
      walk.press(Qt::Key_Left);
      inMenuAtCaret(walk, [key = letter](QMenu& menu) { QTest::keyClick(&menu, key); });
      walk.press(Qt::Key_End);
      EXPECT_EQ(redPixels(walk), 0);
    }
    EXPECT_EQ(shop.file("Woerter.txt"), "Söhme\n");
    inMenuAtCaret(walk, [](QMenu& menu) {
      EXPECT_EQ(toUtf8(menu.actions().front()->text()), "&Rückgängig") << "nothing for a word that is known by now";
    });
    walk.desktop->mainForm().findChild<QAction*>(QStringLiteral("fixWellen"))->trigger();
    walk.leave();
  }
  Walk walk(shop);
  EXPECT_TRUE(walk.desktop->program().spelling.knows(U"Söhme"));
  EXPECT_FALSE(walk.desktop->mainForm().findChild<QAction*>(QStringLiteral("fixWellen"))->isChecked());
  walk.close();
}

}  // namespace
}  // namespace ui
