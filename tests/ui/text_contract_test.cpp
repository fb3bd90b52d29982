// A text on the screen keeps the contract of rich texts, and its counts and positions hold against a plain recount.
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "base/text.h"
#include "support/rich_text_contract.h"
#include "support/undo_contract.h"
#include "text_screen.h"
#include "ui/utf8.h"

namespace support {
namespace {

std::shared_ptr<base::RichText> makeQtRichText() {
  const auto screen = std::make_shared<Screen>();
  return {screen, &screen->text};
}

INSTANTIATE_TEST_SUITE_P(Qt, RichTextContract, testing::Values(MakeRichText{"QtRichText", makeQtRichText}),
                         testing::PrintToStringParamName());

// A plain recount of everything the index answers.
void expectRecounted(const Screen& screen) {
  const std::string whole = base::withWindowsLineEnds(ui::toUtf8(screen.edit.document()->toRawText()));
  const auto count = [](std::string_view text) {
    base::TextCount result;
    while (!text.empty()) {
      const char32_t c = base::takeCodePoint(text);
      if (c == U'\n') ++result.lineEnds;
      if (c == U' ') ++result.blanks;
      if (c != U'\r' && c != U'\n') ++result.characters;
    }
    return result;
  };
  ASSERT_EQ(screen.text.countAll(), count(whole));
  const base::TextSelection selection = screen.text.selection();
  const std::string_view head = base::firstCodePoints(whole, static_cast<std::size_t>(selection.start));
  const std::string_view rest = std::string_view(whole).substr(head.size());
  const std::string_view selected = base::firstCodePoints(rest, static_cast<std::size_t>(selection.length));
  ASSERT_EQ(screen.text.selectedText(), selected);
  ASSERT_EQ(screen.text.countSelection(), count(selected));
  const bool caretAtStart = screen.edit.textCursor().position() == screen.edit.textCursor().selectionStart();
  const std::string before = std::string(head) + std::string(caretAtStart ? "" : selected);
  const std::size_t lineStart = before.rfind('\n') == std::string::npos ? 0 : before.rfind('\n') + 1;
  const auto column = static_cast<std::int64_t>(base::codePointCount(std::string_view(before).substr(lineStart))) + 1;
  ASSERT_EQ(screen.text.caret(), (base::Caret{count(before).lineEnds + 1, column}));
}

class Walker {
 public:
  explicit Walker(unsigned seed) : random_(seed) {}

  void step(UndoScreen& screen) {
    const int choice = upTo(12);
    if (choice == 0) return screen.undo.undo();
    if (choice == 1) return screen.undo.redo();
    if (choice == 2) return QTest::keyClick(&screen.edit, Qt::Key_Backspace);
    if (choice == 3)
      return QTest::keyClick(&screen.edit, Qt::Key_Return, upTo(1) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    if (choice == 4) return paste(screen);
    if (choice == 5) return screen.text.replaceSelection("");
    if (choice == 6) return editTwice(screen);
    if (choice == 7) return screen.text.setFormat({.points = 8.0 + upTo(3)});
    if (choice == 8 && upTo(100) == 0) return screen.text.setPlainText(piece(3000));
    if (choice == 8) return send(screen.edit, Qt::Key_A, "a");
    if (choice == 9) return sendMark(screen.edit);
    place(screen);
  }

  std::string piece(int most) {
    static const std::vector<std::string> parts = {"a", "x", " ", "\n", "\n", "😀", "\u2028", "\u0308", "\u00A0", "\t"};
    std::string result;
    for (int i = upTo(most); i >= 0; --i) result += parts[static_cast<std::size_t>(upTo(9))];
    return result;
  }

 private:
  int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

  void place(Screen& screen) {
    const base::TextCount all = screen.text.countAll();
    const auto end = static_cast<int>(all.characters + 2 * all.lineEnds);
    const int start = upTo(end);
    screen.text.select({start, upTo(3) == 0 ? upTo(end - start) / 4 : upTo(4) / 3});
  }

  void paste(Screen& screen) {
    auto* const source = new QMimeData;
    source->setText(ui::toQString(piece(200)));
    QApplication::clipboard()->setMimeData(source);
    screen.edit.paste();
  }

  // Two places in one edit block, which the toolkit reports as one change.
  void editTwice(Screen& screen) {
    QTextCursor cursor(screen.edit.document());
    cursor.beginEditBlock();
    for (int i = 0; i < 2; ++i) {
      const int place = upTo(screen.edit.document()->characterCount() - 1);
      const bool isInPair = screen.edit.document()->characterAt(place).isLowSurrogate();
      cursor.setPosition(place + (isInPair ? 1 : 0));
      if (upTo(1) == 0) cursor.deleteChar();
      cursor.insertText(ui::toQString(piece(3)));
    }
    cursor.endEditBlock();
  }

  std::mt19937 random_;
};

TEST(RichTextEdit, countsStayRightUnderAnyEdits) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    UndoScreen screen;
    Walker walker(seed);
    screen.text.setPlainText(walker.piece(3000));
    for (int step = 0; step < 1500; ++step) {
      walker.step(screen);
      ASSERT_NO_FATAL_FAILURE(expectRecounted(screen)) << "seed " << seed << ", step " << step;
    }
    while (screen.undo.canRedo()) screen.undo.redo();
    const Snapshot last(screen.text);
    while (screen.undo.canUndo()) screen.undo.undo();
    EXPECT_FALSE(Snapshot(screen.text).sameText(last));
    while (screen.undo.canRedo()) screen.undo.redo();
    EXPECT_TRUE(Snapshot(screen.text).sameText(last)) << "seed " << seed;
  }
}

TEST(RichTextEdit, aLongParagraphIsCountedLikeAShortOne) {
  // Longer than one chunk of the counting loop, with a pair before, across and behind its end.
  for (const std::size_t blanks : {0xFFFDU, 0xFFFEU, 0xFFFFU}) {
    Screen screen;
    std::string text(blanks, ' ');
    text.append("😀").append(0xFFFF, 'a').append("😀");
    screen.text.setPlainText(text);
    const auto count = static_cast<std::int64_t>(blanks);
    EXPECT_EQ(screen.text.countAll(), (base::TextCount{count + 0xFFFF + 2, count, 0}));
  }
}

}  // namespace
}  // namespace support
