// Walks through the text container, keys and clicks alone.
#include <gtest/gtest.h>

#include <QDir>
#include <QInputDialog>
#include <QTextEdit>
#include <string>

#include "editor/document_file.h"
#include "walk.h"

namespace ui {
namespace {

struct ContainerWalk : Walk {
  explicit ContainerWalk(const Shop& shop) : Walk(shop) { open(); }

  void open() {
    desktop->run([this] { desktop->platform().show(window); });
    turnTo(window);
  }
  void press(QKeyCombination key) { Walk::press(key.key(), key.keyboardModifiers()); }
  void search(const QString& suggested, const QString& sought) {
    whenAsked([=](QDialog& dialog) {
      auto& box = dynamic_cast<QInputDialog&>(dialog);
      EXPECT_EQ(box.windowTitle(), "Suchen");
      EXPECT_TRUE(box.labelText().startsWith("Bitte geben Sie den gesuchten Text ein. Wenn"));
      EXPECT_EQ(box.textValue(), suggested);
      if (sought.isNull()) return dialog.reject();
      box.setTextValue(sought);
      QTest::keyClick(&box, Qt::Key_Return);
    });
    press(Qt::CTRL | Qt::Key_F);
  }
  [[nodiscard]] base::TextSelection selection() const { return window.rtfTextC.selection(); }

  editor::ContainerWindow& window = desktop->program().windows.container;
};

TEST(ContainerWalk, IsWrittenUndoneZoomedAndCopiedBesideTheMainWindow) {
  const Shop shop;
  {
    ContainerWalk walk(shop);
    walk.type("Auto Haus");
    walk.press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(walk.text("rtfTextC"), "Auto");
    walk.press(Qt::CTRL | Qt::Key_Y);
    EXPECT_EQ(walk.text("rtfTextC"), "Auto Haus");
    walk.press(Qt::CTRL | Qt::Key_Plus);
    walk.press(Qt::CTRL | Qt::Key_0);
    EXPECT_EQ(walk.text("fixAnsichtsgröße"), "125 %");
    walk.press(Qt::CTRL | Qt::Key_Plus);
    EXPECT_EQ(walk.text("fixAnsichtsgröße"), "150 %");
    walk.press(Qt::CTRL | Qt::Key_A);
    walk.press(Qt::CTRL | Qt::Key_C);
    walk.press(Qt::Key_Delete);
    EXPECT_FALSE(walk.window.mnuCut.enabled || walk.window.mnuMarkAll.enabled);

    walk.turnTo(walk.desktop->program().windows.main);
    walk.press(Qt::CTRL | Qt::Key_V);
    EXPECT_EQ(walk.text("rtfText"), "Auto Haus");
    for (const auto key : {Qt::Key_A, Qt::Key_B, Qt::Key_C, Qt::Key_Z, Qt::Key_Z}) walk.press(Qt::CTRL | key);
    EXPECT_EQ(walk.text("rtfText"), "");
    walk.turnTo(walk.window);
    walk.press(Qt::CTRL | Qt::Key_V);
    EXPECT_TRUE(walk.window.rtfTextC.format().bold);
    for (const auto key : {Qt::Key_A, Qt::Key_X, Qt::Key_Z, Qt::Key_Z}) walk.press(Qt::CTRL | key);

    // Closed with its text, it comes again with it and what can be undone.
    walk.desktop->formOf(walk.window).resize(700, 500);
    walk.press(Qt::CTRL | Qt::Key_Z);
    walk.press(Qt::CTRL | Qt::Key_W);
    QTest::qWait(50);
    EXPECT_FALSE(walk.window.isOpen);
    lifecycle::Program& program = walk.desktop->program();
    walk.desktop->run(
        [&] { editor::appendToContainer(walk.window, program.containerUndo, base::plainDocument("\r\nMeier", {})); });
    walk.open();
    EXPECT_EQ(walk.text("rtfTextC"), "Auto Haus\nMeier");
    EXPECT_EQ(walk.selection(), (base::TextSelection{0, 9}));
    walk.press(Qt::CTRL | Qt::Key_Z);
    walk.press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(walk.text("rtfTextC"), "Auto") << "the block is one step, the words before it are theirs";
    walk.expectBox("Möchten Sie die Änderungen im Text-Container speichern?", QMessageBox::No);
    walk.close();
  }
  ContainerWalk again(shop);
  EXPECT_EQ(again.desktop->formOf(again.window).size(), QSize(700, 500));
  EXPECT_EQ(again.text("rtfTextC") + again.text("fixAnsichtsgröße"), "150 %");
  again.close();
}

TEST(ContainerWalk, SearchesBehindTheCaretWhateverTheCase) {
  const Shop shop;
  ContainerWalk walk(shop);
  walk.type("MÜLLER");
  walk.press(Qt::Key_Return);
  walk.type("Möbel Müller");
  walk.press(Qt::CTRL | Qt::Key_Home);
  EXPECT_FALSE(walk.window.mnuFindNext.enabled);
  walk.search("", QString());
  EXPECT_EQ(walk.selection(), base::TextSelection{});
  walk.search("", "");
  walk.search("", "mü");
  EXPECT_EQ(walk.selection(), (base::TextSelection{14, 2})) << "the one at the caret is not behind it";
  EXPECT_EQ(walk.focus(), "rtfTextC");
  walk.expectBox("Suchtext \"mü\" nicht gefunden!", QMessageBox::Ok);
  walk.press(Qt::Key_F3);
  EXPECT_EQ(walk.selection(), base::TextSelection{});
  EXPECT_FALSE(walk.window.mnuFindNext.enabled);
  walk.search("mü", "m");
  EXPECT_EQ(walk.selection().start, 8);
  walk.press(Qt::Key_F3);
  EXPECT_EQ(walk.selection(), (base::TextSelection{14, 1}));
  walk.expectBox("Text-Container speichern?", QMessageBox::No);
  walk.close();
}

TEST(ContainerWalk, ItsFilesAreItsOwnAndTheEndAsksForBothTexts) {
  const Shop shop;
  ContainerWalk walk(shop);
  QDir::setCurrent(QString::fromStdString(shop.directory.path("")));
  const auto saved = [&](const char* name) {
    return base::plainText(editor::readDocumentFile(shop.directory.read(name)));
  };
  walk.type("Huber");
  walk.whenAsked([](QDialog& dialog) { chooseFile(dialog, "Huber.RTF"); });
  walk.press(Qt::CTRL | Qt::Key_S);
  EXPECT_EQ(saved("Huber.RTF.rtf"), "Huber");
  EXPECT_TRUE(walk.desktop->formOf(walk.window).windowTitle().endsWith("/Huber.RTF.rtf"));

  shop.directory.write("neu.txt", "Neu");
  walk.type("!");
  walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::Cancel);
  walk.press(Qt::CTRL | Qt::Key_O);
  EXPECT_EQ(walk.text("rtfTextC"), "Huber!");
  walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::No);
  walk.whenAsked([](QDialog& dialog) { chooseFile(dialog, "neu.txt"); });
  walk.press(Qt::CTRL | Qt::Key_O);
  EXPECT_EQ(walk.text("rtfTextC"), "Neu");

  walk.type("er ");
  walk.turnTo(walk.desktop->program().windows.main);
  walk.type("Haus");
  // Answered for the one and not for the other, neither is lost, and the window is there again.
  walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::No);
  walk.expectBox("Möchten Sie die Änderungen im Text-Container speichern?", QMessageBox::Cancel);
  QMetaObject::invokeMethod(&walk.desktop->mainForm(), &QWidget::close, Qt::QueuedConnection);
  QTest::qWait(150);
  EXPECT_FALSE(walk.desktop->hasEnded());
  EXPECT_EQ(walk.text("rtfText"), "Haus");
  EXPECT_TRUE(walk.desktop->formOf(walk.window).isVisible());
  walk.expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::No);
  walk.expectBox("Möchten Sie die Änderungen im Text-Container speichern?", QMessageBox::Yes);
  walk.whenAsked([](QDialog& dialog) { chooseFile(dialog, "Ende"); });
  walk.close();
  EXPECT_EQ(saved("Ende.rtf"), "er Neu");
}

}  // namespace
}  // namespace ui
