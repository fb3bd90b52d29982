// Walks through backup and restore up to the files on disk, keys and clicks alone.
#include <gtest/gtest.h>

#include <QInputDialog>
#include <QTreeView>
#include <filesystem>

#include "ui/utf8.h"
#include "walk.h"

namespace ui {
namespace {

void openBackup(Walk& walk) {
  walk.press(Qt::Key_D, Qt::AltModifier);
  walk.press(Qt::Key_W);
}

TEST(Walk, DataAreSavedIntoANewDirectoryAndBroughtBackIntoTheRunningProgram) {
  const Shop shop;
  const std::string stick = shop.directory.path("stick");
  std::filesystem::create_directories(stick + "/a/b");
  Walk walk(shop);
  walk.type("ab");
  EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "2,00 EUR");
  const auto& windows = walk.desktop->program().windows;
  walk.whenAsked([&](QDialog& dialog) {
    walk.turnTo(windows.backup);
    walk.fill("txtPath", toQString(stick));
    EXPECT_EQ(walk.text("lblHinweis"), "In diesem Verzeichnis liegt noch keine Sicherung.");
    auto& tree = walk.widget<QTreeView>("Dir1");
    tree.setFocus(Qt::TabFocusReason);
    walk.press(Qt::Key_Right);  // opens it
    walk.press(Qt::Key_Down);
    EXPECT_EQ(walk.text("txtPath"), stick + "/a");
    walk.whenAsked([&](QDialog& box) {
      dynamic_cast<QInputDialog&>(box).setTextValue("neu");
      QTest::keyClick(&box, Qt::Key_Return);
    });
    walk.expectBox("Der Ordner wurde angelegt", QMessageBox::Ok);
    walk.click("cmdMakeDir");
    EXPECT_EQ(tree.currentIndex().data().toString(), "neu");
    EXPECT_EQ(walk.text("lblPath"), backup::shortenedPath(stick + "/a/neu"));
    walk.expectBox("Vorgang erfolgreich", QMessageBox::Ok);
    walk.click("cmdBackup");
    dialog.close();
  });
  openBackup(walk);
  EXPECT_EQ(shop.directory.read("stick/a/neu/Tessik.pdb"), shop.file("Tessik.pdb"));

  const std::string former = shop.file("Tessik.pdb");
  shop.directory.write("stick/a/neu/Tessik.pdb", "[Versalien]\r\n0=20\r\n[Preise]\r\n0=5,00\r\n");
  walk.turnTo(windows.main);
  walk.whenAsked([&](QDialog& dialog) {
    walk.turnTo(windows.backup);
    EXPECT_EQ(walk.text("txtPath"), stick + "/a/neu") << "kept";
    walk.click("optRestore");
    EXPECT_EQ(walk.text("cmdBackup"), "&Wiederherstellen");
    walk.expectBox("Trotzdem wiederherstellen?", QMessageBox::Yes);
    walk.expectBox("Vorgang erfolgreich", QMessageBox::Ok);
    walk.widget<QWidget>("cmdBackup").setFocus(Qt::TabFocusReason);
    walk.press(Qt::Key_Return);
    dialog.close();
  });
  openBackup(walk);
  walk.turnTo(windows.main);
  EXPECT_EQ(walk.text("lblPreisNettoGesamt"), "10,00 EUR");
  EXPECT_EQ(shop.file("Tessik.pdb"), shop.directory.read("stick/a/neu/Tessik.pdb"));
  EXPECT_EQ(shop.file("Tessik.pdb.1"), former) << "what gave way is kept";
  EXPECT_NE(shop.userStore().find("BackupPath=" + stick + "/a/neu"), std::string::npos);
  walk.leave();
}

}  // namespace
}  // namespace ui
