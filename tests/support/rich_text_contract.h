// What every implementation of base::RichText must do; each instantiates this suite with a maker of its own.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "base/rich_text.h"

namespace base {

// So that a failed comparison shows figures.
inline void PrintTo(const TextCount& count, std::ostream* out) {
  *out << count.characters << " characters, " << count.blanks << " blanks, " << count.lineEnds << " line ends";
}
inline void PrintTo(const TextSelection& selection, std::ostream* out) {
  *out << selection.length << " from " << selection.start;
}
inline void PrintTo(const Caret& caret, std::ostream* out) { *out << caret.line << ", " << caret.column; }

}  // namespace base

namespace support {

/// Makes an empty text whose composer knows at least a + U+0308 and A + U+030A.
struct MakeRichText {
  std::string name;
  std::function<std::shared_ptr<base::RichText>()> make;
};
// So that the tests' names are the same in every run.
inline void PrintTo(const MakeRichText& maker, std::ostream* out) { *out << maker.name; }

/// Empty lines, breaks, both kinds of line end formats, an emoji across runs, all alignments.
inline base::Document sampleDocument() {
  using base::Alignment;
  const std::string emoji = "😀x";
  return {.formats = {{},
                      {.family = "Courier New", .points = 10.5, .bold = true, .colour = 0x123456},
                      {.italic = true, .underline = true, .strikeOut = true, .script = base::Script::subscript}},
          .paragraphs = {{"", {}, 1, Alignment::centre},
                         {"ab\u00A0c", {{1, 0}, {3, 1}, {1, 2}}, 2, Alignment::left},
                         {"", {}, 2, Alignment::right},
                         {"d\u2028" + emoji, {{4, 1}, {4, 2}, {1, 0}}, 0, Alignment::justified},
                         {"", {}, 1, Alignment::left}}};
}

class RichTextContract : public testing::TestWithParam<MakeRichText> {
 protected:
  std::shared_ptr<base::RichText> text = GetParam().make();
};

TEST_P(RichTextContract, aTextIsKeptAndCounted) {
  struct Row {
    std::string given;
    std::string kept;
    base::TextCount count;
  };
  const std::vector<Row> rows = {
      {"", "", {0, 0, 0}},
      {"Stück 12", "Stück 12", {8, 1, 0}},
      {"a\r\nb\nc\rd", "a\r\nb\r\nc\r\nd", {4, 0, 3}},
      {"a\u2028b\u2029c", "a\r\nb\r\nc", {3, 0, 2}},
      {"\r\n", "\r\n", {0, 0, 1}},
      {"\n\r\r\n", "\r\n\r\n\r\n", {0, 0, 3}},
      {"a\u00A0b c", "a\u00A0b c", {5, 1, 0}},
      {"\t\v\f", "\t\v\f", {3, 0, 0}},
      {"😀 😀", "😀 😀", {3, 1, 0}},
      {"\uFEFFa", "\uFEFFa", {2, 0, 0}},
      {"a\u0308 A\u030A", "ä Å", {3, 1, 0}},
      {"q\u0308\u0301", "q\u0308\u0301", {3, 0, 0}},
      {std::string("a\0b", 3), "ab", {2, 0, 0}},
      {"a\uFFFC\uFDD0\uFDD1b", "ab", {2, 0, 0}},
      {"a\xE4z\xED\xA0\x80", "a\uFFFDz\uFFFD\uFFFD\uFFFD", {6, 0, 0}},
  };
  for (const Row& row : rows) {
    text->setPlainText(row.given);
    EXPECT_EQ(text->plainText(), row.kept);
    EXPECT_EQ(text->countAll(), row.count) << row.kept;
    EXPECT_EQ(text->selection(), (base::TextSelection{0, 0})) << row.kept;
    EXPECT_EQ(text->caret(), (base::Caret{1, 1})) << row.kept;
  }
}

TEST_P(RichTextContract, aSelectionIsMeasuredInCodePoints) {
  struct Row {
    base::TextSelection wanted;
    base::TextSelection got;
    std::string selected;
    base::TextCount count;
    base::Caret caret;
  };
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
  // Positions: 😀 0, a 1, line end 2 and 3, blank 4, no-break space 5, line end 6 and 7, line end 8 and 9, z 10.
  text->setPlainText("😀a\r\n \u00A0\u2028\nz");
  const std::string whole = "😀a\r\n \u00A0\r\n\r\nz";
  const std::vector<Row> rows = {
      {{0, 1}, {0, 1}, "😀", {1, 0, 0}, {1, 2}},         {{1, 0}, {1, 0}, "", {0, 0, 0}, {1, 2}},
      {{2, 2}, {2, 2}, "\r\n", {0, 0, 1}, {2, 1}},      {{2, 1}, {2, 2}, "\r\n", {0, 0, 1}, {2, 1}},
      {{3, 1}, {4, 0}, "", {0, 0, 0}, {2, 1}},          {{3, 0}, {4, 0}, "", {0, 0, 0}, {2, 1}},
      {{6, 2}, {6, 2}, "\r\n", {0, 0, 1}, {3, 1}},      {{7, 2}, {8, 2}, "\r\n", {0, 0, 1}, {4, 1}},
      {{4, 2}, {4, 2}, " \u00A0", {2, 1, 0}, {2, 3}},   {{1, 8}, {1, 9}, "a\r\n \u00A0\r\n\r\n", {3, 1, 3}, {4, 1}},
      {{0, 11}, {0, 11}, whole, {5, 1, 3}, {4, 2}},     {{0, kMost}, {0, 11}, whole, {5, 1, 3}, {4, 2}},
      {{10, kMost}, {10, 1}, "z", {1, 0, 0}, {4, 2}},   {{-2, 3}, {0, 1}, "😀", {1, 0, 0}, {1, 2}},
      {{-5, 2}, {0, 0}, "", {0, 0, 0}, {1, 1}},         {{2, -1}, {2, 0}, "", {0, 0, 0}, {1, 3}},
      {{kMost, kMost}, {11, 0}, "", {0, 0, 0}, {4, 2}}, {{kLeast, kMost}, {0, 0}, "", {0, 0, 0}, {1, 1}},
  };
  for (const Row& row : rows) {
    text->select(row.wanted);
    const std::string name = testing::PrintToString(row.wanted);
    EXPECT_EQ(text->selection(), row.got) << name;
    EXPECT_EQ(text->selectedText(), row.selected) << name;
    EXPECT_EQ(text->countSelection(), row.count) << name;
    EXPECT_EQ(text->caret(), row.caret) << name;
  }
  EXPECT_EQ(text->countAll(), (base::TextCount{5, 1, 3}));
}

TEST_P(RichTextContract, typedTextTakesThePlaceOfTheSelection) {
  struct Row {
    std::string before;
    base::TextSelection place;
    std::string typed;
    std::string after;
    std::int64_t caret;
  };
  const std::vector<Row> rows = {
      {"ab", {1, 0}, "😀x", "a😀xb", 3},
      {"ab", {0, 2}, "", "", 0},
      {"a\r\nb", {1, 2}, "", "ab", 1},
      {"ab", {1, 0}, "1\r2\u20283\n", "a1\r\n2\r\n3\r\nb", 10},
      {"xay", {2, 0}, "\u0308", "xäy", 2},  // a mark behind its letter
      {"q\u0308", {0, 1}, "a", "ä", 1},     // a letter before its mark
      {"aq\u0308y", {1, 1}, "", "äy", 1},   // a mark that comes to its letter
      {"a\n\u0308", {1, 2}, "", "ä", 1},    // and over a line end
      {"ab", {2, 0}, "c\u0308a\u0308", "abc\u0308ä", 5},
      {"q\u0308", {0, 1}, "A\u030A", "Å\u0308", 1},
      {"ab", {1, 0}, "\u0308\u0308", "ä\u0308b", 2},
  };
  for (const Row& row : rows) {
    text->setPlainText(row.before);
    text->select(row.place);
    text->replaceSelection(row.typed);
    EXPECT_EQ(text->plainText(), row.after);
    EXPECT_EQ(text->selection(), (base::TextSelection{row.caret, 0})) << row.after;
    const base::TextCount typedCount = text->countAll();
    text->setPlainText(row.after);
    EXPECT_EQ(typedCount, text->countAll()) << row.after;
  }
}

TEST_P(RichTextContract, theFormatIsThatOfTheSelectionOrOfWhatIsTypedNext) {
  const base::CharFormat plain{.family = "Arial", .points = 12};
  const base::CharFormat loud{.family = "Courier New", .points = 48.5, .bold = true, .italic = true, .underline = true};
  text->setFormat(plain);
  EXPECT_EQ(text->format(), plain);
  text->setPlainText("abc\r\nd");
  EXPECT_EQ(text->format(), plain);

  text->select({1, 2});
  text->setFormat(loud);
  const std::vector<std::pair<base::TextSelection, base::CharFormat>> rows = {
      {{0, 0}, plain}, {{1, 0}, plain}, {{2, 0}, loud}, {{3, 0}, loud}, {{5, 0}, plain}, {{6, 0}, plain},
      {{1, 1}, loud},  {{0, 2}, plain}, {{2, 4}, loud}, {{1, 2}, loud}, {{0, 6}, plain},
  };
  for (const auto& [place, format] : rows) {
    text->select(place);
    EXPECT_EQ(text->format(), format) << testing::PrintToString(place);
  }
  EXPECT_EQ(text->plainText(), "abc\r\nd");

  text->select({0, 3});
  text->replaceSelection("abc");
  EXPECT_EQ(text->format(), plain) << "that of the first character replaced";

  text->select({6, 0});
  text->setFormat(loud);
  EXPECT_EQ(text->format(), loud);
  text->replaceSelection("e");
  EXPECT_EQ(text->format(), loud);
  text->select({6, 0});
  EXPECT_EQ(text->format(), plain);
}

TEST_P(RichTextContract, aFreshTextHasTheFormatOfAFreshDocument) {
  EXPECT_EQ(text->format(), base::CharFormat{});
  EXPECT_EQ(text->document(), base::Document{});
}

// An empty line keeps what was typed before it, and so does a text that was emptied.
TEST_P(RichTextContract, emptyLinesKeepTheFormatOfWhatWasThere) {
  const base::CharFormat loud{.family = "Courier New", .points = 48, .bold = true, .colour = 0xFF8000};
  const base::CharFormat small{.family = "Arial", .points = 6};
  struct Row {
    std::string before;  // in `loud`
    base::TextSelection place;
    std::string typed;
    base::TextSelection asked;
  };
  const std::vector<Row> rows = {
      {"", {0, 0}, "\n", {2, 0}},        {"", {0, 0}, "\n", {0, 0}},        {"", {0, 0}, "\n", {0, 2}},
      {"ABC", {3, 0}, "\n\n", {7, 0}},   {"ABC", {3, 0}, "\n\n", {5, 2}},   {"ABC", {3, 0}, "\n\n", {3, 2}},
      {"ABC", {0, 0}, "\n", {0, 0}},     {"ABC", {0, 3}, "", {0, 0}},       {"A\nB", {3, 1}, "", {3, 0}},
      {"A\n\nB", {3, 0}, "", {3, 0}},    {"A\nB", {0, 4}, "", {0, 0}},      {"A\nB", {1, 2}, "", {1, 0}},
      {"A", {1, 0}, "x\n\ny\n", {3, 0}}, {"A", {1, 0}, "x\n\ny\n", {8, 0}}, {"A\nB", {0, 1}, "", {0, 0}},
  };
  for (const Row& row : rows) {
    text->setDocument({});
    text->setFormat(small);
    text->setPlainText(row.before);
    text->select({0, row.before.empty() ? 0 : 99});
    text->setFormat(loud);
    text->select(row.place);
    text->replaceSelection(row.typed);
    text->select(row.asked);
    EXPECT_EQ(text->format(), loud) << row.before << " / " << row.typed << testing::PrintToString(row.asked);
  }
}

TEST_P(RichTextContract, aFormatIsChosenForLineEndsAndEmptyLinesToo) {
  const base::CharFormat loud{.bold = true, .strikeOut = true, .script = base::Script::superscript, .colour = 0xFF};
  text->setPlainText("a\n\n\nb\n");
  for (const base::TextSelection place : {base::TextSelection{3, 2}, {1, 2}, {10, 0}, {7, 3}}) {
    text->select(place);
    text->setFormat(loud);
    EXPECT_EQ(text->format(), loud) << testing::PrintToString(place);
    text->select(place);
    EXPECT_EQ(text->format(), loud) << testing::PrintToString(place);
    text->changeFormat({.colour = std::optional<base::Rgb>()});
    EXPECT_EQ(text->format().colour, std::nullopt);
  }
  text->select({5, 0});
  EXPECT_EQ(text->format(), base::CharFormat{});
}

TEST_P(RichTextContract, documentsComeBackAsTheyWentIn) {
  const base::Document whole = sampleDocument();
  text->setDocument(whole);
  EXPECT_TRUE(sameContent(text->document(), whole)) << text->plainText();
  EXPECT_EQ(text->plainText(), base::plainText(whole));
  EXPECT_EQ(text->countAll(), base::countText(whole));
  EXPECT_EQ(text->selection(), base::TextSelection{});
  EXPECT_EQ(text->format(), whole.formats[1]);

  // Each piece in its own place changes nothing.
  const base::TextCount all = text->countAll();
  for (std::int64_t start = 0; start <= base::codePoints(all); ++start) {
    for (std::int64_t length = 0; start + length <= base::codePoints(all); length += 3) {
      text->select({start, length});
      const base::TextSelection place = text->selection();
      const base::Document piece = text->selectedDocument();
      ASSERT_EQ(base::plainText(piece), text->selectedText());
      text->replaceSelection(piece);
      ASSERT_EQ(text->selection(), (base::TextSelection{place.start + place.length, 0}));
      ASSERT_TRUE(sameContent(text->document(), whole)) << testing::PrintToString(place);
    }
  }
  text->setDocument({});
  EXPECT_TRUE(sameContent(text->document(), {}));
}

TEST_P(RichTextContract, documentsEnterComposedAndCleaned) {
  base::Document document = base::plainDocument("xa\u0308\u0308y\uFFFC", {});
  document.formats.push_back({.bold = true});
  document.paragraphs[0].runs = {{2, 0}, {2, 1}, {6, 0}};
  text->setDocument(document);
  ASSERT_EQ(text->plainText(), "xä\u0308y");
  text->select({1, 1});
  EXPECT_EQ(text->format(), base::CharFormat{});
  EXPECT_EQ(text->countAll().characters, 4);
}

TEST_P(RichTextContract, paragraphsHaveAnAlignment) {
  using base::Alignment;
  const auto alignments = [this] {
    std::vector<Alignment> result;
    for (const base::Paragraph& paragraph : text->document().paragraphs) result.push_back(paragraph.alignment);
    return result;
  };
  const auto align = [this](base::TextSelection place, Alignment alignment) {
    text->select(place);
    text->setAlignment(alignment);
    EXPECT_EQ(text->alignment(), alignment);
  };
  text->setPlainText("a\nb\n\nd");
  align({0, 0}, Alignment::right);
  align({3, 3}, Alignment::centre);  // b and its line end, not the line behind
  align({6, 3}, Alignment::justified);
  EXPECT_EQ(alignments(),
            (std::vector{Alignment::right, Alignment::centre, Alignment::justified, Alignment::justified}));
  text->select({4, 2});
  text->replaceSelection("x\ny");
  EXPECT_EQ(alignments(), (std::vector{Alignment::right, Alignment::centre, Alignment::centre, Alignment::justified}));
  text->select({1, 2});
  text->replaceSelection("");
  EXPECT_EQ(alignments(), (std::vector{Alignment::right, Alignment::centre, Alignment::justified}));

  base::Document piece = base::plainDocument("1\n2\n3", {});
  for (base::Paragraph& paragraph : piece.paragraphs) paragraph.alignment = Alignment::left;
  text->select({1, 0});
  text->replaceSelection(piece);
  EXPECT_EQ(alignments(), (std::vector{Alignment::right, Alignment::left, Alignment::right, Alignment::centre,
                                       Alignment::justified}));
}

TEST_P(RichTextContract, aChangeOfOnePartKeepsTheOthersOfEveryCharacter) {
  const base::CharFormat plain{};
  const base::CharFormat large{.family = "Courier New", .points = 48, .italic = true};
  text->setFormat(plain);
  text->setPlainText("ab");
  text->select({1, 1});
  text->setFormat(large);
  text->select({0, 2});
  text->changeFormat({.bold = true});
  text->select({0, 1});
  EXPECT_EQ(text->format(), (base::CharFormat{.bold = true}));
  text->select({1, 1});
  EXPECT_EQ(text->format(), (base::CharFormat{.family = "Courier New", .points = 48, .bold = true, .italic = true}));
}

TEST_P(RichTextContract, composingKeepsTheFormatsAround) {
  const base::CharFormat plain{};
  const base::CharFormat bold{.bold = true};
  text->setFormat(plain);
  text->setPlainText("xay");
  text->select({1, 1});
  text->setFormat(bold);
  text->select({2, 0});
  text->replaceSelection("\u0308");
  ASSERT_EQ(text->plainText(), "xäy");
  text->select({0, 1});
  EXPECT_EQ(text->format(), plain);
  text->select({1, 1});
  EXPECT_EQ(text->format(), bold);
  text->select({2, 1});
  EXPECT_EQ(text->format(), plain);
}

TEST_P(RichTextContract, anEmptyTextKeepsItsFormatWhenTheCaretIsSetAnew) {
  const base::CharFormat loud{.family = "Courier New", .points = 48, .bold = true};
  text->setFormat(loud);
  text->select({0, 0});
  text->replaceSelection("a");
  EXPECT_EQ(text->format(), loud);
}

TEST_P(RichTextContract, theRevisionGrowsWithTheTextAlone) {
  std::uint64_t last = text->revision();
  const auto grows = [&](const char* what) {
    EXPECT_GT(text->revision(), last) << what;
    last = text->revision();
  };
  text->setPlainText("abc");
  grows("a new text");
  text->setPlainText("abc");
  grows("the same text again");
  text->select({1, 1});
  EXPECT_EQ(text->revision(), last);
  text->replaceSelection("");
  grows("deleting");
}

}  // namespace support
