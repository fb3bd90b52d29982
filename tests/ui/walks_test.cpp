// Walks through the whole program, keys and clicks alone: what runs here is what people run.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QCompleter>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QSplitter>
#include <QTextEdit>
#include <QUrl>
#include <filesystem>
#include <string>

#include "walk.h"

namespace ui {
namespace {

constexpr std::string_view kGeneral =
    "[Einstellungen]\r\nMwst=16\r\nMaßeinheit=mm\r\nIndex1=2\r\nIndex2=2\r\nTVorn=0\r\nLZ=1\r\nSnd=x.wav\r\n";
constexpr std::string_view kLists =
    "[Einstellungen]\r\nIndexp1=1\r\nIndexp2=0\r\n[Rabatte]\r\n10 %\r\n5.00 EUR\r\n[RabatteTip]\r\nEil\r\nWeg\r\n"
    "[Rabatte2]\r\n3 %\r\n2 %\r\n[RabatteTip2]\r\nStamm\r\nBar\r\n";
constexpr std::string_view kPrices = "[Versalien]\r\n0=20\r\n1=50\r\n[Preise]\r\n0=1,00\r\n1=2,00\r\n";

/// A shop that has been set up: prices, surcharges and discounts, and a version that has started before.
struct Shop : Premises {
  Shop() {
    write("Ostrowerk.ini", kGeneral);
    write("Tessik.ini", kLists);
    write("Tessik.pdb", kPrices);
    std::filesystem::create_directories(directory.path("config/Tessik"));
    directory.write("config/Tessik/Tessik.conf", "[Prog]\nVersion=1.4\nWinState=0\n");
  }
};

TEST(Walk, AFirstStartAsksNothingAndPricesWhatIsTyped) {
  const Premises premises;
  {
    Walk walk(premises);
    walk.close();
  }
  EXPECT_NE(premises.file("Ostrowerk.ini").find("Mwst=16"), std::string::npos);
  EXPECT_NE(premises.userStore().find("Version=1.4"), std::string::npos);
}

TEST(Walk, AnOrderIsPricedKeyByKeyAndTheSettingsOutliveTheProgram) {
  const Shop shop;
  QList<int> parts;
  {
    Walk walk(shop);
    walk.desktop->mainForm().resize(1200, 700);
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
  walk.desktop->mainForm().resize(1280, 600);  // or the bar has no room for it
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

TEST(Walk, AnAmountByHandJoinsTheRunningSum) {
  const Shop shop;
  Walk walk(shop);
  walk.fill("txtAddPerHand", "12,5x");
  EXPECT_EQ(walk.beeps, 1);
  walk.press(Qt::Key_Return);
  walk.fill("txtAddPerHand", "-2,25");
  walk.click("cmdAddPerHand");
  const auto* const entries = walk.widget<QListView>("cboCalc").model();
  ASSERT_EQ(entries->rowCount(), 2);
  EXPECT_EQ(entries->index(0, 0).data().toString() + " " + entries->index(1, 0).data().toString(),
            "12.50 EUR -2.25 EUR");
  EXPECT_EQ(walk.text("lblRCalc"), "10,25 EUR");
  walk.close();
}

TEST(Walk, DamagedSettingsAreToldAndKeptAndTheProgramGoesOn) {
  const Shop shop;
  shop.write("Ostrowerk.ini", "[Einstellungen]\r\nMwst=viel\r\n");
  std::filesystem::remove(shop.data + "/Tessik.ini");
  Walk walk(shop, [](Walk& expecting) {
    expecting.expectBox("Soll eine neue Tessik.ini erstell werden?", QMessageBox::Yes);
    expecting.expectBox("Mwst", QMessageBox::Ok);
  });
  walk.type("AB");
  EXPECT_EQ(walk.text("lblMwstG1"), "Mwst. 16 %");
  walk.leave();
  EXPECT_EQ(shop.file("Ostrowerk.ini.1"), "[Einstellungen]\r\nMwst=viel\r\n");
  EXPECT_NE(shop.file("Ostrowerk.ini").find("Mwst=16"), std::string::npos);
}

TEST(Walk, ARefusedSettingsFileEndsTheProgramBeforeItsWindow) {
  const Shop shop;
  std::filesystem::remove(shop.data + "/Tessik.ini");
  QTimer::singleShot(0, [] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    QTest::mouseClick(static_cast<QWidget*>(box->button(QMessageBox::No)), Qt::LeftButton);
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

TEST(Walk, ExitEndsTheProgramLikeItsCloseButton) {
  const Shop shop;
  Walk walk(shop);
  walk.press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return walk.desktop->hasEnded(); }));
  EXPECT_NE(shop.userStore().find("SndPfad="), std::string::npos);
}

/// Enters a name into a file dialog of the toolkit, which starts in the working directory, and agrees.
void chooseFile(QDialog& dialog, const QString& file) {
  auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
  ASSERT_NE(name, nullptr) << dialog.windowTitle().toStdString();
  name->setFocus();
  name->selectAll();
  name->insert(file);  // typed, the dialog would propose something else
  QTest::keyClick(name, Qt::Key_Return);
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
  walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::Cancel);
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
