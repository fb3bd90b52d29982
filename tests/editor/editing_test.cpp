// The editing commands and formats of the document, from the menu entry to what the calculation makes of it.
#include "editor/editing.h"

#include <gtest/gtest.h>

#include <string>

#include "support/desk.h"

namespace {

using frame::MainWindow;
using support::Desk;

struct LetteringDesk : Desk {
  LetteringDesk() {
    offerHeights({{"50", "1"}});
    write("Folie");
    platform.clipboard = "alt";
  }
};

TEST(Editing, EachCommandChangesTextAndClipboardAndIsFollowedByTheCalculation) {
  struct Row {
    base::MenuEntry MainWindow::*command;
    base::TextSelection selection;
    std::string text;
    std::string clipboard;
    std::string counted;
  };
  const Row rows[] = {
      {&MainWindow::mnuCut, {1, 2}, "Fie", "ol", "3"},        {&MainWindow::mnuCut, {2, 0}, "Folie", "alt", "5"},
      {&MainWindow::mnuCopy, {1, 2}, "Folie", "ol", "2"},     {&MainWindow::mnuCopy, {2, 0}, "Folie", "alt", "5"},
      {&MainWindow::mnuPaste, {1, 2}, "Faltie", "alt", "6"},  {&MainWindow::mnuPaste, {5, 0}, "Foliealt", "alt", "8"},
      {&MainWindow::mnuDelete, {1, 2}, "Fie", "alt", "3"},    {&MainWindow::mnuDelete, {2, 0}, "Folie", "alt", "5"},
      {&MainWindow::mnuMarkAll, {2, 0}, "Folie", "alt", "5"},
  };
  for (const Row& row : rows) {
    LetteringDesk desk;
    desk.document.select(row.selection);
    desk.click(desk.window.*row.command);
    EXPECT_EQ(desk.document.plainText(), row.text);
    EXPECT_EQ(desk.platform.clipboard, row.clipboard) << row.text;
    EXPECT_EQ(desk.window.lblTextlenBox.text, row.counted) << row.text;
    EXPECT_EQ(desk.window.lblPNettoAuf.text, row.counted + ",00 EUR") << row.text;
  }
}

TEST(Editing, FormatsAreCopiedAndPastedUnlessTheyShallNot) {
  LetteringDesk desk;
  desk.document.select({.start = 1, .length = 2});
  desk.document.changeFormat({.bold = true});
  desk.click(desk.window.mnuCopyAll);
  EXPECT_EQ(desk.platform.clipboardFormats, desk.document.document());
  desk.click(desk.window.mnuCopy);
  desk.document.select({.start = 5, .length = 0});
  desk.click(desk.window.mnuPaste);
  EXPECT_TRUE(desk.document.format().bold);
  desk.document.select({.start = 0, .length = 0});
  desk.click(desk.window.mnuPastePlain);
  EXPECT_EQ(desk.document.plainText(), "olFolieol");
  EXPECT_FALSE(desk.document.format().bold);
}

TEST(Editing, CommandsNeedALettering) {
  LetteringDesk desk;
  const MainWindow& w = desk.window;
  desk.click(w.mnuMarkAll);
  desk.click(w.mnuCut);
  EXPECT_TRUE(w.mnuPaste.enabled && w.mnuPastePlain.enabled);
  EXPECT_FALSE(w.mnuCopyAll.enabled);
  EXPECT_FALSE(w.mnuCut.enabled || w.mnuCopy.enabled || w.mnuDelete.enabled || w.mnuMarkAll.enabled);
  EXPECT_FALSE(w.mnuSuchen.enabled || w.mnuRechtschreibung.enabled || w.mnuNotiz.enabled || w.cmdNotiz.enabled);
  desk.click(w.mnuPaste);
  EXPECT_TRUE(w.mnuCut.enabled && w.mnuCopy.enabled && w.mnuDelete.enabled && w.mnuMarkAll.enabled);
  EXPECT_TRUE(w.mnuSuchen.enabled && w.mnuRechtschreibung.enabled && w.mnuNotiz.enabled && w.cmdNotiz.enabled);
  desk.click(w.mnuMarkAll);
  desk.platform.clipboard = "";
  desk.platform.clipboardFormats.reset();
  desk.click(w.mnuPaste);
  EXPECT_EQ(desk.document.plainText(), "Folie") << "nothing to paste takes nothing away";
}

struct FormatDesk : LetteringDesk {
  FormatDesk() {
    for (const char* family : {"Arial", "Courier New"}) window.cboFontSelect.items.add(family);
    for (const char* size : {"8", "24"}) window.cboFontSize.items.add(size);
    document.select({.start = 1, .length = 2});
    program.wiring.fire(document, base::Event::selected);
  }
  void toggle(base::ToggleButton& button) {
    button.pressed = !button.pressed;
    click(button);
  }
  [[nodiscard]] base::CharFormat formatAt(std::int64_t start) {
    document.select({.start = start, .length = 1});
    program.wiring.fire(document, base::Event::selected);
    return document.format();
  }
};

TEST(CharacterFormat, TheSelectionTakesWhatIsChosenAndNothingElseDoes) {
  FormatDesk desk;
  const base::CharFormat before = desk.document.format();
  desk.choose(desk.window.cboFontSelect, 1);
  desk.choose(desk.window.cboFontSize, 1);
  desk.toggle(desk.window.cmdFett);
  desk.toggle(desk.window.cmdUnterstrichen);
  const base::CharFormat chosen{.family = "Courier New", .points = 24, .bold = true, .underline = true};
  EXPECT_EQ(desk.window.lblZeile.text, "Font: Courier New / Größe: 24 (F/S/U) / Ze, Pos: 1, 4");
  for (std::int64_t start = 0; start < 5; ++start) {
    const bool isChosen = start == 1 || start == 2;
    EXPECT_EQ(desk.formatAt(start), isChosen ? chosen : before) << start;
    EXPECT_EQ(desk.window.cboFontSelect.text, isChosen ? "Courier New" : "Arial") << start;
    EXPECT_EQ(desk.window.cmdFett.pressed, isChosen) << start;
  }
}

TEST(CharacterFormat, AFormatOutsideTheListsIsShownAllTheSame) {
  FormatDesk desk;
  desk.document.setFormat({.family = "Fehlende Schrift", .points = 10.5, .italic = true});
  desk.program.wiring.fire(desk.document, base::Event::selected);
  EXPECT_EQ(desk.window.cboFontSelect.text, "Fehlende Schrift");
  EXPECT_EQ(desk.window.cboFontSelect.selected, -1);
  EXPECT_EQ(desk.window.cboFontSize.text, "10.5");
  EXPECT_TRUE(desk.window.cmdKursiv.pressed);
  // A step in another control keeps them.
  desk.toggle(desk.window.cmdFett);
  EXPECT_EQ(desk.document.format(),
            (base::CharFormat{.family = "Fehlende Schrift", .points = 10.5, .bold = true, .italic = true}));
}

TEST(CharacterFormat, ASizeThatIsNoneAndAnEmptyTypefaceChangeNothing) {
  for (const char* const size : {"", "-8"}) {
    FormatDesk desk;
    const base::CharFormat before = desk.document.format();
    desk.window.cboFontSize.text = size;
    desk.window.cboFontSelect.text = "";
    desk.click(desk.window.cboFontSize);
    EXPECT_EQ(desk.document.format(), before) << size;
  }
  FormatDesk desk;
  desk.window.cboFontSize.text = "12,5";
  desk.click(desk.window.cboFontSize);
  EXPECT_EQ(desk.document.format().points, 12.5);
}

}  // namespace
