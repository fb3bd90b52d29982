// Walks through the document and its files, keys and clicks alone.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QPushButton>
#include <QTextEdit>
#include <QUrl>
#include <filesystem>
#include <string>

#include "walk.h"

namespace ui {
namespace {

TEST(Walk, WordsAreUndoneAndRedoneByTheirKeysAndPricedAnew) {
  const Shop shop;
  Walk walk(shop);
  struct Keys {
    QKeyCombination undo;
    QKeyCombination redo;
  };
  for (const Keys& keys : {Keys{Qt::CTRL | Qt::Key_Z, Qt::CTRL | Qt::Key_Y},
                           Keys{Qt::ALT | Qt::Key_Backspace, Qt::CTRL | Qt::SHIFT | Qt::Key_Z}}) {
    walk.fill("rtfText", "Auto Haus");
    EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "9,00 EUR");
    walk.press(keys.undo.key(), keys.undo.keyboardModifiers());
    EXPECT_EQ(walk.text("rtfText") + " " + walk.text("lblPreisNettoGesamt"), "Auto 4,00 EUR");
    walk.press(keys.redo.key(), keys.redo.keyboardModifiers());
    EXPECT_EQ(walk.text("rtfText") + " " + walk.text("lblPreisNettoGesamt"), "Auto Haus 9,00 EUR");
    walk.press(keys.redo.key(), keys.redo.keyboardModifiers());
    EXPECT_EQ(walk.text("rtfText"), "Auto Haus");
  }
  // A box that has the focus undoes its own.
  walk.fill("txtStück", "23");
  walk.press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(walk.text("rtfText"), "Auto Haus");
  EXPECT_NE(walk.text("txtStück"), "23");
  walk.leave();
}

// What the bar shows of the format at the caret, in the order of its buttons.
std::string shownFormat(const Walk& walk) {
  std::string shown;
  for (const char* const name : {"cmdFett", "mnuDurchgestrichen", "mnuLinks", "mnuZentriert", "mnuRechts"}) {
    shown += walk.desktop->mainForm().findChild<QAction*>(QString::fromLatin1(name))->isChecked() ? 'x' : '-';
  }
  return shown;
}

TEST(Walk, FormatsAreTypedByKeysShownAtTheCaretAndCopied) {
  const Shop shop;
  Walk walk(shop);
  const auto& text = walk.desktop->program().windows.main.rtfText;
  walk.press(Qt::Key_B, Qt::ControlModifier);
  walk.press(Qt::Key_E, Qt::ControlModifier);
  walk.type("Brot");
  EXPECT_EQ(shownFormat(walk), "x--x-");
  walk.press(Qt::Key_Return);
  walk.press(Qt::Key_R, Qt::ControlModifier);
  walk.press(Qt::Key_X, Qt::ControlModifier | Qt::ShiftModifier);
  walk.desktop->mainForm().resize(1600, 600);  // or the bar has no room for it
  walk.widget<QComboBox>("cboFontSize").setFocus(Qt::TabFocusReason);
  walk.type("13,7");
  walk.press(Qt::Key_Return);
  EXPECT_EQ(Walk::focus(), "rtfText");
  walk.type("alt");
  EXPECT_EQ(shownFormat(walk) + walk.text("cboFontSize"), "xx--x13.5");
  walk.press(Qt::Key_Up);
  EXPECT_EQ(shownFormat(walk) + walk.text("cboFontSize"), "x--x-8");
  walk.press(Qt::Key_E, Qt::ControlModifier);
  EXPECT_EQ(shownFormat(walk), "x--x-") << "chosen again";

  const base::Document typed = text.document();
  walk.press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "Brot\nalt");
  walk.press(Qt::Key_A, Qt::ControlModifier);
  walk.press(Qt::Key_Delete);
  walk.press(Qt::Key_L, Qt::ControlModifier);
  walk.press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(base::sameContent(text.document(), typed));
  walk.press(Qt::Key_A, Qt::ControlModifier);
  walk.press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(shownFormat(walk).substr(0, 2) + walk.text("cboFontSize"), "x-8") << "as the first of what gave way";
  EXPECT_EQ(text.plainText(), "Brot\r\nalt");
  walk.leave();
}

TEST(Walk, TheZoomOfTheViewIsKeptAndTheDocumentKnowsNothingOfIt) {
  const Shop shop;
  {
    Walk walk(shop);
    walk.type("Brot");
    const auto& text = walk.desktop->program().windows.main.rtfText;
    const base::Document before = text.document();
    EXPECT_EQ(walk.text("fixAnsichtsgröße"), "300 %");
    const int height = walk.widget<QTextEdit>("rtfText").cursorRect().height();
    walk.press(Qt::Key_Plus, Qt::ControlModifier);
    walk.press(Qt::Key_Plus, Qt::ControlModifier);
    walk.press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(walk.widget<QTextEdit>("rtfText").cursorRect().height(), 2 * height, 4);
    EXPECT_EQ(text.document(), before);
    EXPECT_EQ(walk.text("cboFontSize") + walk.text("fixAnsichtsgröße"), "8600 %");
    walk.leave();
  }
  Walk again(shop);
  EXPECT_EQ(again.text("fixAnsichtsgröße"), "600 %");
  again.click("fixAnsichtsgröße");
  EXPECT_EQ(again.text("fixAnsichtsgröße"), "300 %");
  again.close();
}

TEST(Walk, ColoursAndFontsComeFromTheirDialogs) {
  const Shop shop;
  Walk walk(shop);
  const auto& text = walk.desktop->program().windows.main.rtfText;
  walk.type("A");
  walk.press(Qt::Key_A, Qt::ControlModifier);
  walk.whenAsked([](QDialog& dialog) {
    dynamic_cast<QColorDialog&>(dialog).setCurrentColor(Qt::red);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  walk.press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  walk.whenAsked([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
  const base::CharFormat red = text.format();
  EXPECT_EQ(red.colour, 0xFF0000U);
  walk.press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(text.format(), red) << "nothing chosen";
  walk.whenAsked([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  walk.press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(text.format(), red);
  walk.whenAsked([](QDialog& dialog) {
    for (auto* const button : dialog.findChildren<QPushButton*>()) {
      if (button->text().endsWith(QStringLiteral("matisch"))) button->click();
    }
  });
  walk.press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(text.format(), base::CharFormat{});
  walk.leave();
}

TEST(Walk, OneFileThatIsDroppedOnTheWindowIsOpenedAndTwoAreNot) {
  const Shop shop;
  shop.write("neu.txt", "Huber");
  Walk walk(shop);
  walk.type("AB");
  const QUrl file = QUrl::fromLocalFile(QString::fromStdString(shop.data + "/neu.txt"));
  const auto drop = [&](const QList<QUrl>& files) {
    QMimeData data;
    data.setUrls(files);
    QDragEnterEvent arrival({}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&walk.desktop->mainForm(), &arrival);
    QDropEvent event({}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&walk.desktop->mainForm(), &event);
    walk.settle();
  };
  drop({file, file});
  EXPECT_EQ(walk.text("rtfText"), "AB");
  walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::No);
  drop({file});
  EXPECT_TRUE(QTest::qWaitFor([&] { return walk.text("rtfText") == "Huber"; }));
  walk.close();
}

TEST(Walk, ADocumentIsSavedAskedForAndOpenedAgain) {
  const Shop shop;
  QDir::setCurrent(QString::fromStdString(shop.directory.path("")));
  std::filesystem::create_directory(shop.directory.path("Kunden"));
  const std::string path = shop.directory.path("Kunden/Angebot.rtf");
  {
    Walk walk(shop);
    walk.type("Huber");
    walk.whenAsked([](QDialog& dialog) {
      const auto& files = dynamic_cast<const QFileDialog&>(dialog);
      EXPECT_EQ(files.nameFilters(), QStringList{"RTF-Dokument (*.rtf *.RTF)"});
      EXPECT_TRUE(files.testOption(QFileDialog::DontConfirmOverwrite));
      chooseFile(dialog, "Kunden/Angebot.rtf");
    });
    walk.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(walk.desktop->mainForm().windowTitle().toStdString(), "Tessik v1.4 - " + path);
    EXPECT_EQ(Walk::focus(), "rtfText");
    walk.press(Qt::Key_End, Qt::ControlModifier);
    walk.type(" & Co");
    walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::Cancel);
    walk.press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(walk.text("rtfText"), "Huber & Co");
    walk.leave();
  }
  Walk walk(shop);
  walk.whenAsked([](QDialog& dialog) { chooseFile(dialog, "Angebot.rtf"); });
  walk.press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(walk.text("rtfText") + " " + walk.text("lblPreisNettoGesamt"), "Huber 5,00 EUR");
  walk.close();
}

TEST(Walk, AClosedWindowKeepsTheLetteringUntilItIsAnsweredFor) {
  const Shop shop;
  Walk walk(shop);
  walk.type("Huber");
  // A timer that ticks behind the question answers nothing.
  walk.whenAsked([&](QDialog& question) {
    walk.desktop->program().windows.main.tmrSicherung.intervalMilliseconds = 1;
    walk.desktop->run([] {});
    QTest::qWait(50);
    EXPECT_TRUE(question.isVisible());
    QTest::keyClick(&question, Qt::Key_Escape);
  });
  QMetaObject::invokeMethod(&walk.desktop->mainForm(), &QWidget::close, Qt::QueuedConnection);
  QTest::qWait(150);
  EXPECT_FALSE(walk.desktop->hasEnded());
  walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::Yes);
  walk.whenAsked([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  QMetaObject::invokeMethod(&walk.desktop->mainForm(), &QWidget::close, Qt::QueuedConnection);
  QTest::qWait(100);
  EXPECT_FALSE(walk.desktop->hasEnded());
  EXPECT_EQ(walk.text("rtfText"), "Huber");
  QDir::setCurrent(QString::fromStdString(shop.directory.path("")));
  walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::Yes);
  walk.whenAsked([](QDialog& dialog) { chooseFile(dialog, "Huber"); });
  walk.close();
  EXPECT_NE(shop.directory.read("Huber.rtf").find("Huber"), std::string::npos);
}

}  // namespace
}  // namespace ui
