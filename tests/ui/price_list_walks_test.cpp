// Walks through the editor of the price list, keys and clicks alone, up to the file and the main window's prices.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <string>

#include "ui/utf8.h"
#include "walk.h"

namespace ui {
namespace {

QWidget& part(QDialog& dialog, const char* name) {
  auto* const found = dialog.findChild<QWidget*>(QString::fromUtf8(name));
  if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
  return *found;
}

std::string textOf(QDialog& dialog, const char* name) { return toUtf8(part(dialog, name).property("text").toString()); }

void clickRow(QDialog& dialog, const char* name, int row, bool isTwice = false) {
  auto& list = static_cast<QAbstractItemView&>(part(dialog, name));
  const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  if (isTwice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

int scrolled(QDialog& dialog, const char* name) {
  return static_cast<QAbstractItemView&>(part(dialog, name)).verticalScrollBar()->value();
}

TEST(Walk, ThePriceListIsEditedSavedAndPricesTheLettering) {
  const Shop shop;
  Walk walk(shop);
  walk.type("Bäckerei");
  walk.choose("cboBuchstabenhöhe", 1);
  EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "16,00 EUR");
  walk.whenAsked([&](QDialog& editor) {
    QApplication::setActiveWindow(&editor);
    EXPECT_EQ(textOf(editor, "Label3"), "Eintrag: 0/2");
    EXPECT_FALSE(part(editor, "Command1").isEnabled());
    for (int row = 0; row < 40; ++row) {
      walk.type(row < 39 ? "7" + QString::number(row) : QString(250, 'W'));
      walk.press(Qt::Key_Return);
      walk.type("1.5a");
      EXPECT_EQ(textOf(editor, "txtpreis"), "1,5");
      walk.press(Qt::Key_Return);
    }
    EXPECT_EQ(textOf(editor, "Label3"), "Eintrag: 42/42");
    EXPECT_GT(scrolled(editor, "List1"), 0);
    EXPECT_EQ(scrolled(editor, "List1"), scrolled(editor, "List2"));
    clickRow(editor, "List1", 41, true);
    EXPECT_LT(editor.minimumSizeHint().width(), 1000);
    walk.type("739");
    QTest::mouseClick(&part(editor, "Command1"), Qt::LeftButton);
    QTest::mouseClick(&part(editor, "Command3"), Qt::LeftButton);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("\r\n\r\nVersalienhöhe"));
    static_cast<QAbstractItemView&>(part(editor, "List2")).verticalScrollBar()->setValue(0);
    EXPECT_EQ(scrolled(editor, "List1"), 0);
    clickRow(editor, "List2", 1, true);
    EXPECT_EQ(textOf(editor, "Command1") + textOf(editor, "txtVersalie") + textOf(editor, "txtpreis"), "&Ändern502");
    EXPECT_FALSE(part(editor, "Command2").isEnabled());
    part(editor, "txtpreis").setFocus(Qt::TabFocusReason);
    walk.type("3");
    QTest::mouseClick(&part(editor, "Command1"), Qt::LeftButton);
    clickRow(editor, "List1", 0);
    QTest::mouseClick(&part(editor, "cmdDelete"), Qt::LeftButton);
    EXPECT_EQ(textOf(editor, "Label3"), "Eintrag: 0/41");
    QTest::mouseClick(&part(editor, "Command2"), Qt::LeftButton);
  });
  walk.press(Qt::Key_Insert);
  EXPECT_EQ(walk.text("cboBuchstabenhöhe") + " " + walk.text("lblPreisNettoGesamt"), "50 24,00 EUR");
  EXPECT_TRUE(shop.file("Tessik.pdb").starts_with("[Versalien]\r\n0=50\r\n1=70\r\n")) << shop.file("Tessik.pdb");
  EXPECT_NE(shop.file("Tessik.pdb").find("[Preise]\r\n0=3.00 EUR\r\n1=1.50 EUR\r\n"), std::string::npos);

  walk.whenAsked([](QDialog& editor) { editor.close(); });
  walk.press(Qt::Key_Delete);
  walk.leave();
}

int rowsOf(QDialog& dialog, const char* name) {
  return static_cast<QAbstractItemView&>(part(dialog, name)).model()->rowCount();
}

TEST(Walk, PricesComeFromASpreadsheetAndGoBackToIt) {
  const Shop shop;
  const QString file = toQString(shop.directory.path("daten/preise.csv"));
  shop.write("preise.csv", "H\xF6he;Preis\r\n\"Gro\xDF; XL\";1.250,00 \x80\r\n80;auf Anfrage\r\n50;2,5\r\n");
  Walk walk(shop);
  const auto chooses = [&] { walk.whenAsked([file](QDialog& dialog) { chooseFile(dialog, file); }); };
  walk.whenAsked([&](QDialog& editor) {
    chooses();
    walk.whenAsked([&](QDialog& preview) {
      EXPECT_EQ(rowsOf(preview, "List1") * 10 + rowsOf(preview, "lstAbgewiesen"), 21);
      EXPECT_EQ(textOf(preview, "optErsetzen"), "Liste &ersetzen (2 Einträge entfallen)");
      preview.close();
    });
    QTest::mouseClick(&part(editor, "cmdCsvImport"), Qt::LeftButton);
    EXPECT_EQ(textOf(editor, "Label3"), "Eintrag: 0/2");
    for (const bool isAppended : {false, true}) {
      chooses();
      walk.whenAsked([&walk, isAppended](QDialog& /*preview*/) {
        if (isAppended) walk.press(Qt::Key_Down);
        walk.press(Qt::Key_Return);
      });
      QTest::mouseClick(&part(editor, "cmdCsvImport"), Qt::LeftButton);
    }
    EXPECT_EQ(textOf(editor, "Label3") + " " + textOf(editor, "lblHinweis"), "Eintrag: 3/4 Noch nicht gespeichert");
    clickRow(editor, "List1", 2);
    QTest::mouseClick(&part(editor, "cmdDelete"), Qt::LeftButton);
    chooses();
    walk.expectBox("gibt es schon", QMessageBox::Yes);
    QTest::mouseClick(&part(editor, "cmdCsvExport"), Qt::LeftButton);
    QTest::mouseClick(&part(editor, "Command2"), Qt::LeftButton);
  });
  walk.choose("cboBuchstabenhöhe", 1);
  walk.press(Qt::Key_Insert);
  walk.close();
  EXPECT_EQ(shop.file("preise.csv"),
            "\xEF\xBB\xBFVersalienhöhe;Preis\r\n\"Groß; XL\";1250,00\r\n50;2,50\r\n50;2,50\r\n");
  EXPECT_EQ(shop.file("Tessik.pdb"),
            "[Versalien]\r\n0=Groß; XL\r\n1=50\r\n2=50\r\n"
            "[Preise]\r\n0=1250.00 EUR\r\n1=2.50 EUR\r\n2=2.50 EUR\r\n");
}

}  // namespace
}  // namespace ui
