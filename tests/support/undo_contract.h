// Every kind of change of a rich text can be taken back and made again, whoever implements the text.
#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "editor/undo_store.h"
#include "support/rich_text_contract.h"

namespace support {

/// A text as a person sees it and as it goes on being written: the formats of all line ends count.
struct Snapshot {
  base::Document document;
  base::TextSelection selection;

  explicit Snapshot(const base::RichText& text) : document(text.document()), selection(text.selection()) {}

  bool operator==(const Snapshot& other) const { return selection == other.selection && sameText(other); }
  [[nodiscard]] bool sameText(const Snapshot& other) const {
    const auto sameEnd = [&](const base::Paragraph& a, const base::Paragraph& b) {
      return document.formats[a.endFormat] == other.document.formats[b.endFormat];
    };
    return sameContent(document, other.document) && std::equal(document.paragraphs.begin(), document.paragraphs.end(),
                                                               other.document.paragraphs.begin(), sameEnd);
  }
};
inline void PrintTo(const Snapshot& snapshot, std::ostream* out) {
  *out << testing::PrintToString(base::plainText(snapshot.document)) << ", "
       << testing::PrintToString(snapshot.selection);
}

using Change = std::function<void(base::RichText&)>;

inline const std::vector<std::pair<std::string, Change>>& changes() {
  using base::RichText;
  static const std::vector<std::pair<std::string, Change>> all = {
      {"a letter", [](RichText& text) { text.replaceSelection("b"); }},
      {"a mark that joins", [](RichText& text) { text.replaceSelection("\u0308"); }},
      {"a line end", [](RichText& text) { text.replaceSelection("\n"); }},
      {"lines", [](RichText& text) { text.replaceSelection("b\n\nc\n"); }},
      {"nothing", [](RichText& text) { text.replaceSelection(""); }},
      {"a document", [](RichText& text) { text.replaceSelection(sampleDocument()); }},
      {"a format", [](RichText& text) { text.setFormat({.family = "Verdana", .points = 33}); }},
      {"bold", [](RichText& text) { text.changeFormat({.bold = true}); }},
      {"alignment", [](RichText& text) { text.setAlignment(base::Alignment::right); }},
  };
  return all;
}

TEST_P(RichTextContract, everyChangeIsUndoneAndRedoneExactly) {
  const std::string depth = "99";
  editor::UndoStore undo(*text, depth);
  text->setDocument(sampleDocument());
  const std::int64_t end = codePoints(text->countAll());
  for (const auto& [name, change] : changes()) {
    for (std::int64_t start = 0; start <= end; ++start) {
      for (std::int64_t length = 0; start + length <= end; length += 4) {
        text->select({start, length});
        const Snapshot before(*text);
        change(*text);
        const Snapshot after(*text);
        if (!undo.canUndo()) {
          ASSERT_TRUE(before.sameText(after)) << name << " at " << start << ", " << length;
          continue;
        }
        for (int i = 0; i < 2; ++i) {
          undo.undo();
          ASSERT_EQ(Snapshot(*text), before) << name << " at " << start << ", " << length;
          ASSERT_FALSE(undo.canUndo());
          undo.redo();
          ASSERT_EQ(Snapshot(*text), after) << name << " at " << start << ", " << length;
        }
        undo.undo();
        undo.clear();
      }
    }
  }
}

TEST_P(RichTextContract, aWalkOfChangesLeadsBackAndForth) {
  std::mt19937 random(4711);
  const auto upTo = [&random](std::int64_t most) {
    return std::uniform_int_distribution<std::int64_t>(0, most)(random);
  };
  const std::string depth = "99";
  editor::UndoStore undo(*text, depth);
  for (int walk = 0; walk < 20; ++walk) {
    text->setDocument(sampleDocument());
    ASSERT_FALSE(undo.canUndo() || undo.canRedo());
    std::vector<std::pair<Snapshot, Snapshot>> steps;  // before and after each
    for (int i = 0; i < 60; ++i) {
      const std::int64_t end = codePoints(text->countAll());
      const std::int64_t start = upTo(end);
      text->select({start, upTo(1) == 0 ? 0 : upTo(std::min<std::int64_t>(end - start, 12))});
      const Snapshot before(*text);
      {
        const editor::UndoStore::Group step(undo);
        text->replaceSelection(std::to_string(i) + "#");  // so that no step comes to nothing
        for (std::int64_t change = upTo(2); change > 0; --change) {
          changes()[static_cast<std::size_t>(upTo(std::ssize(changes()) - 1))].second(*text);
        }
      }
      if (!before.sameText(Snapshot(*text))) steps.emplace_back(before, Snapshot(*text));
      for (std::int64_t back = upTo(3); back > 1 && !steps.empty() && steps.back().second == Snapshot(*text); --back) {
        undo.undo();
        ASSERT_EQ(Snapshot(*text), steps.back().first);
        steps.pop_back();
      }
    }
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
      undo.undo();
      ASSERT_EQ(Snapshot(*text), step->first);
    }
    for (const auto& step : steps) {
      undo.redo();
      ASSERT_EQ(Snapshot(*text), step.second);
    }
  }
}

}  // namespace support
