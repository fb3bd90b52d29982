// Walks to printed pages, keys and clicks alone, up to the PDF files on disk.
#include <gtest/gtest.h>

#include <QSettings>
#include <string>

#include "walk.h"

namespace ui {
namespace {

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
  EXPECT_TRUE(bytes.starts_with("%PDF-")) << bytes.size();
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
  walk.whenAsked([](QDialog& preview) {
    EXPECT_EQ(preview.windowTitle(), "Seitenansicht");
    preview.reject();
  });
  walk.press(Qt::Key_D, Qt::AltModifier);
  walk.press(Qt::Key_A);
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
