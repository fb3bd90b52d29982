// Walks to printed pages, keys and clicks alone, up to the PDF files on disk.
#include <gtest/gtest.h>

#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <string>

#include "qttext/pdf.h"
#include "ui/utf8.h"
#include "walk.h"

namespace ui {
namespace {

TEST(Pages, ShowEveryLineOnceBetweenHeadingAndNumber) {
  const support::TemporaryDirectory directory;
  std::string lines;
  for (int i = 1; i <= 200; ++i) lines += "Zeile " + std::to_string(i) + ".\n";
  const base::PrintTable table{{{"Netto", "1,00 EUR"}, {"Gesamt", "1.000,00 EUR", true}}};
  const base::PrintJob job{"Titel", "Firma", base::HeadingOn::followingPages, {base::plainDocument(lines, {}), table}};
  const auto textOf = [&](const qttext::PdfPages& wanted) {
    directory.write("a.pdf", qttext::pdf(job, wanted));
    return pdfText(directory.path("a.pdf"));
  };
  const QString text = textOf({});
  EXPECT_NE(directory.read("a.pdf").find(std::string("\0T\0i\0t\0e\0l", 10)), std::string::npos);
  for (int i = 1; i <= 200; ++i) EXPECT_EQ(text.count(QStringLiteral("Zeile %1.").arg(i)), 1) << i;
  const QStringList pages = text.split('\f', Qt::SkipEmptyParts);
  ASSERT_GE(pages.size(), 3);
  for (qsizetype i = 0; i < pages.size(); ++i) {
    EXPECT_TRUE(pages[i].trimmed().endsWith(QStringLiteral("Seite: %1").arg(i + 1))) << toUtf8(pages[i]);
    EXPECT_EQ(pages[i].contains(QRegularExpression("Firma +Titel")), i > 0);
  }
  const QStringList amounts = text.split('\n').filter("EUR");
  EXPECT_LE(std::abs(amounts.front().size() - amounts.back().size()), 1) << "one below the other";
  EXPECT_EQ(
      textOf({qttext::ordinaryPaper(), QPageRanges(QPageRanges::fromString("1-2")), qttext::PageOrder::lastFirst}),
      pages[1] + '\f' + pages[0] + '\f');
}

TEST(PrintingWalk, AnOfferIsWrittenKeyByKeyUpToItsPdfFile) {
  const Shop shop;
  Walk walk(shop);
  const std::string file = shop.directory.path("Müller.pdf");
  EXPECT_FALSE(walk.desktop->program().windows.main.mnuAngebot.enabled);
  walk.type("BÄCKEREI");
  walk.whenAsked([&](QDialog& offer) {
    walk.turnTo(walk.desktop->program().windows.offer);
    walk.type("Frau Müller");
    walk.press(Qt::Key_Tab);
    walk.type("Gern bieten wir an:");
    walk.press(Qt::Key_Return);
    walk.press(Qt::Key_Tab);
    walk.press(Qt::Key_Space);
    walk.whenAsked([&](QDialog& dialog) { chooseFile(dialog, QString::fromStdString(file)); });
    walk.click("cmdPDF");
    EXPECT_TRUE(offer.isVisible());
    walk.press(Qt::Key_Escape);
  });
  walk.press(Qt::Key_G, Qt::ControlModifier);
  const std::string bytes = shop.directory.read("Müller.pdf");
  EXPECT_TRUE(pdfText(file).contains(QRegularExpression("(?s)Frau Müller.*Gern bieten .*BÄCKEREI.*Preis je Zeichen")));
  EXPECT_NE(bytes.find("/FontFile2"), std::string::npos) << "typefaces are embedded";
  const std::string stored = shop.userStore();
  EXPECT_NE(stored.find("S1=1\n"), std::string::npos) << stored;
  EXPECT_NE(stored.find("Gern bieten wir an:\\r\\n\n"), std::string::npos) << stored;
  walk.leave();
}

TEST(PrintingWalk, ListsAndPagesAreSeenBeforeTheyArePrinted) {
  const Shop shop;
  Walk walk(shop);
  walk.type("Auto");
  walk.whenAsked([&](QDialog& dialog) {
    auto& preview = dynamic_cast<QPrintPreviewDialog&>(dialog);
    EXPECT_EQ(preview.printer()->docName(), "Tessik Print Control");
    QPrinter file;
    for (const char* const name : {"Auto.pdf", "fehlt/Auto.pdf"}) {
      file.setOutputFileName(toQString(shop.directory.path(name)));
      emit preview.paintRequested(&file);
    }
    preview.reject();
  });
  walk.expectBox("Das Verzeichnis wurde nicht gefunden.", QMessageBox::Ok);
  walk.press(Qt::Key_D, Qt::AltModifier);
  walk.press(Qt::Key_A);
  EXPECT_TRUE(pdfText(shop.directory.path("Auto.pdf")).contains("Auto"));
  const std::string file = shop.directory.path("Preise.pdf");
  walk.whenAsked([&](QDialog& editor) {
    walk.whenAsked([&](QDialog& dialog) { chooseFile(dialog, QString::fromStdString(file)); });
    walk.turnTo(walk.desktop->program().windows.priceEditor);
    walk.click("cmdPDF");
    editor.reject();
  });
  walk.press(Qt::Key_X, Qt::AltModifier);
  walk.press(Qt::Key_P);
  EXPECT_TRUE(shop.directory.read("Preise.pdf").starts_with("%PDF-"));
  walk.leave();
}

}  // namespace
}  // namespace ui
