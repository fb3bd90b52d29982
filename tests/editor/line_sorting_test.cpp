// Sorting the lines of the document and removing blank ones, as commands of the main window.
#include "editor/line_sorting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/desk.h"

namespace {

using base::Window;
using support::Desk;

// A big and bold text of which the calculation knows.
struct SortDesk : Desk {
  explicit SortDesk(std::string_view lettering) {
    offerHeights({{"50", "1"}});
    document.setFormat({.family = "Courier New", .points = 48, .bold = true});
    write(lettering);
    program.undo.clear();
  }
  void sort(const std::function<void(editor::SortWindow&)>& choose) {
    platform.expectModal("frmSort", [=](Window& dialog) { choose(static_cast<editor::SortWindow&>(dialog)); });
    click(window.mnuSort);
  }
  void undoIsOneStepTo(const base::Document& before) {
    program.undo.undo();
    EXPECT_TRUE(sameContent(document.document(), before)) << document.plainText();
    EXPECT_FALSE(program.undo.canUndo());
  }
};

TEST(LineSorting, PutsTheLinesBackInOrderAsPlainTextInOneStep) {
  struct Row {
    std::string before;
    std::string ascending;
    std::string descending;
    std::string counted;
  };
  const Row rows[] = {
      {"apfel\n\nÄpfel\nZebra\n \t\nBirne\n", "Birne\r\nZebra\r\napfel\r\nÄpfel", "Äpfel\r\napfel\r\nZebra\r\nBirne",
       "20"},
      {"b\u2028😀\uFF21\nba\na\nb\n ", "a\r\nb\r\nb\r\nba\r\n😀Ａ", "😀Ａ\r\nba\r\nb\r\nb\r\na", "7"},
      {"\u00A0", "\u00A0", "\u00A0", "1"},
      {"\n\n", "", "", "0"},
      {"", "", "", "0"},
  };
  for (const Row& row : rows) {
    for (const bool ascends : {true, false}) {
      SortDesk desk(row.before);
      const base::Document before = desk.document.document();
      EXPECT_EQ(desk.window.mnuLeerzeilen.enabled, !row.before.empty());
      desk.sort([&](editor::SortWindow& dialog) {
        dialog.optAuf.checked = ascends;
        dialog.optAb.checked = !ascends;
        desk.click(dialog.cmdGo);
      });
      EXPECT_EQ(desk.document.plainText(), ascends ? row.ascending : row.descending);
      EXPECT_EQ(desk.document.selection(), base::TextSelection{});
      EXPECT_EQ(desk.window.mnuSort.enabled, row.counted != "0");
      desk.document.select({.start = 0, .length = desk.document.countAll().characters});
      EXPECT_EQ(desk.document.format(), base::CharFormat{}) << row.before;
      EXPECT_EQ(desk.window.lblTextlenBox.text, row.counted) << row.before;
      if (!row.before.empty()) desk.undoIsOneStepTo(before);
    }
  }
}

TEST(LineSorting, TellsItsPhasesAndStopsAtEscInEachThatOffersIt) {
  const std::string lettering = "b\na\nd\nc";
  const std::vector<std::string> phases = {
      "Zeilen ermitteln [30%] ... Abbruch mit Esc.", "Zeilen ermitteln [90%] ... Abbruch mit Esc.",
      "Vorsortieren [60%] ... Abbruch mit Esc.", "Text einfügen [25%]", "Leerzeilen entfernen [100%]"};
  for (const std::string& phase : phases) {
    const bool aborts = phase.ends_with("Esc.");
    SortDesk desk(lettering);
    bool isSeen = false;
    desk.platform.onRefresh = [&] {
      if (desk.program.windows.wait.lblInfo.text != phase) return;
      EXPECT_EQ(desk.platform.hourglass, base::Hourglass::on);
      isSeen = desk.platform.escape = true;
    };
    aborts ? desk.click(desk.window.mnuSort) : desk.sort([&](auto& dialog) { desk.click(dialog.cmdGo); });
    EXPECT_TRUE(isSeen) << phase;
    EXPECT_EQ(desk.document.plainText() == "b\r\na\r\nd\r\nc", aborts) << phase;
    EXPECT_EQ(desk.platform.hourglass, base::Hourglass::off);
    EXPECT_FALSE(desk.program.windows.wait.isOpen);
  }
}

TEST(LineSorting, AnAbortedSortKeepsTheDialogOpenForAnother) {
  SortDesk desk("b\nd\na\nc");
  desk.sort([&](editor::SortWindow& dialog) {
    const std::string invitation = dialog.lblInfo.text;
    EXPECT_TRUE(dialog.optAuf.wantsFocus);
    desk.platform.onRefresh = [&] {
      EXPECT_EQ(dialog.lblInfo.text, "Sortiere ... \rAbbruch mit Esc");
      EXPECT_EQ(dialog.Progress2.maximum, 3);
      EXPECT_FALSE(dialog.cmdGo.enabled || dialog.cmdExit.enabled);
      desk.platform.escape = dialog.Progress1.value == 3;  // after the first pass
    };
    desk.click(dialog.cmdGo);
    EXPECT_EQ(dialog.lblInfo.text, invitation);
    EXPECT_TRUE(dialog.cmdGo.enabled && dialog.cmdExit.enabled);
    EXPECT_EQ(dialog.lines, (editor::Lines{"a", "c", "b", "d"}));
    desk.platform.onRefresh = {};
    desk.platform.escape = false;
    desk.click(dialog.cmdGo);
  });
  EXPECT_EQ(desk.document.plainText(), "a\r\nb\r\nc\r\nd");
  desk.write("z\n\ny");
  desk.sort([&](editor::SortWindow& dialog) { desk.click(dialog.cmdExit); });
  EXPECT_EQ(desk.document.plainText(), "z\r\n\r\ny");
}

TEST(BlankLines, GoFromTheDocumentAndLeaveTheOthersAsTheyAre) {
  struct Row {
    base::Document before;
    base::Document after;
  };
  using enum base::Alignment;
  const std::vector<base::CharFormat> formats = {{}, {.bold = true}, {.points = 24}};
  const auto document = [&](std::vector<base::Paragraph> paragraphs) { return base::Document{formats, paragraphs}; };
  const base::Paragraph blank{" \t", {{2, 1}}, 0, right};
  const base::Paragraph text{"a b", {{1, 1}, {2, 2}}, 1, centre};
  const Row rows[] = {
      {document({blank, text, blank, {}, text, {}}), document({text, text})},
      {document({{"\u2028a\u2028 \u2028\u2028b\u2028", {{4, 1}, {3, 2}, {11, 1}}, 2, centre}}),
       document({{"a\u2028b", {{1, 1}, {4, 1}}, 2, centre}})},
      {document({{"\u2028 \u2028", {{7, 1}}, 2, right}, blank}), document({{"", {}, 1, right}})},
      {document({text, {"\u00A0\u2028b", {{6, 0}}, 0}}), {}},
      {document({{}}), {}},
  };
  for (const Row& row : rows) {
    SortDesk desk("");
    desk.document.setDocument(row.before);
    const std::uint64_t revision = desk.document.revision();
    const bool changes = row.after != base::Document{};
    desk.click(desk.window.mnuLeerzeilen);
    EXPECT_TRUE(sameContent(desk.document.document(), changes ? row.after : row.before)) << desk.document.plainText();
    EXPECT_EQ(desk.document.revision() != revision, changes) << desk.document.plainText();
    if (changes) desk.undoIsOneStepTo(row.before);
  }
}

}  // namespace
