// Undo and redo: steps, limits and groups.
#include "editor/undo_store.h"

#include <gtest/gtest.h>

#include <string>

#include "base/memory_rich_text.h"
#include "support/desk.h"

namespace {

struct Written {
  explicit Written(std::string steps, std::size_t mostBytes = editor::UndoStore::kMostBytes)
      : depth(std::move(steps)), undo(text, depth, mostBytes) {}

  void write(int words) {
    for (int i = 0; i < words; ++i) text.replaceSelection("Wort ");
  }
  int undoAll() {
    int steps = 0;
    for (; undo.canUndo(); ++steps) undo.undo();
    return steps;
  }

  base::MemoryRichText text;
  std::string depth;
  editor::UndoStore undo;
};

TEST(UndoStore, KeepsAsManyStepsAsTheSettingSays) {
  const std::pair<std::string, int> rows[] = {
      {"1", 1},   {"7", 7},     {"99", 99}, {"100", 20},        {"0", 20},
      {"-3", 20}, {"viel", 20}, {"", 20},   {" 5 Schritte", 5}, {std::string(500, '9'), 20}};
  for (const auto& [depth, steps] : rows) {
    Written written(depth);
    written.write(120);
    EXPECT_EQ(written.undoAll(), steps) << depth;
  }
  Written written("9");
  written.write(9);
  written.depth = std::string("3");
  written.write(1);
  EXPECT_EQ(written.undoAll(), 3);
}

TEST(UndoStore, KeepsWithinItsMemoryButForTheLastStep) {
  constexpr std::size_t kMost = 100'000;
  Written written("99", kMost);
  written.write(40);
  EXPECT_EQ(written.undoAll(), 40);
  while (written.undo.canRedo()) written.undo.redo();
  written.text.replaceSelection(std::string(kMost / 2, 'a'));
  written.text.replaceSelection(std::string(kMost / 2, 'a'));
  EXPECT_LT(written.undoAll(), 40);
  written.text.replaceSelection(std::string(kMost * 2, 'a'));
  EXPECT_EQ(written.undoAll(), 1);
  written.write(40);
  EXPECT_EQ(written.undoAll(), 40) << "what was forgotten leaves its room";
}

TEST(UndoStore, ANewChangeForgetsWhatWasUndoneAndANewTextEverything) {
  Written written("9");
  written.write(3);
  written.undo.undo();
  EXPECT_TRUE(written.undo.canRedo());
  written.write(1);
  EXPECT_FALSE(written.undo.canRedo());
  written.undo.redo();
  EXPECT_EQ(written.undoAll(), 3);
  written.undo.redo();
  written.text.setPlainText("neu");
  EXPECT_FALSE(written.undo.canUndo() || written.undo.canRedo());
}

TEST(UndoStore, LettersMakeAWordUntilTheCaretGoesElsewhere) {
  Written written("9");
  const auto type = [&](std::string_view letters) {
    for (const char letter : letters) written.text.replaceSelection(std::string(1, letter));
  };
  type("aa bb");
  written.text.select({2, 0});
  written.text.select({5, 0});
  type("b");
  for (const char* const left : {"aa bb", "aa", ""}) {
    written.undo.undo();
    EXPECT_EQ(written.text.plainText(), left);
  }
}

TEST(UndoCommands, AreOfferedWithTheLetteringAndAreFollowedByTheCalculation) {
  support::Desk desk;
  desk.offerHeights({{"50", "1"}});
  const auto offered = [&] { return std::pair(desk.window.mnuUndo.enabled, desk.window.mnuRedo.enabled); };
  EXPECT_EQ(offered(), std::pair(false, false));
  desk.write("Auto");
  EXPECT_EQ(offered(), std::pair(true, false));
  desk.click(desk.window.mnuUndo);
  EXPECT_EQ(desk.platform.beeps, 1) << "no step";
  desk.document.select({4, 0});
  desk.platform.clipboard = "haus";
  desk.click(desk.window.mnuPaste);
  EXPECT_EQ(offered(), std::pair(true, false));
  desk.click(desk.window.mnuUndo);
  EXPECT_EQ(desk.window.lblPreisNettoGesamt.text, "4,00 EUR");
  EXPECT_EQ(offered(), std::pair(true, true));
  desk.click(desk.window.mnuRedo);
  EXPECT_EQ(desk.window.lblPreisNettoGesamt.text, "8,00 EUR");
  desk.click(desk.window.mnuMarkAll);
  desk.click(desk.window.mnuDelete);
  EXPECT_EQ(offered(), std::pair(false, false)) << "without a lettering";
}

}  // namespace
