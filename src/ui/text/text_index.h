// Counts and positions of a rich-text document, kept while it changes, so that nobody walks the document to ask.
//
// A paragraph carries its own count, and a count that dies with its paragraph leaves the totals by itself; a change
// therefore costs the paragraphs it touches. Sums at every 64th paragraph serve positions: a change drops those behind
// it, a question walks on from the last one before it.
// Documents are plain paragraphs: tables and frames are not counted for.
#pragma once

#include <QTextBlock>
#include <QTextDocument>
#include <cstdint>
#include <memory>
#include <vector>

#include "base/rich_text.h"

namespace ui {

/// Of the paragraphs, without the ends between them.
struct TextTotals {
  base::TextCount count;
  int longRuns = 0;  // paragraphs with a run of more than 10,000 characters and no place to break a line
};

class TextIndex {
 public:
  /// A document has one index at most, and its paragraphs' user data belong to it.
  explicit TextIndex(const QTextDocument& document);

  /// Takes a change over, as QTextDocument::contentsChange tells it; every change must come here.
  void update(int from, int added);

  [[nodiscard]] base::TextCount countAll() const;
  [[nodiscard]] bool hasLongRun() const { return totals_->longRuns > 0; }
  /// What lies between two positions of the toolkit, of which `end` is not the smaller.
  [[nodiscard]] base::TextCount countBetween(int begin, int end) const;

  /// The code points of the plain text before a position of the toolkit, and back; what lies behind the end is the end,
  /// what lies within a line end is behind it.
  [[nodiscard]] std::int64_t position(int documentPosition) const;
  [[nodiscard]] int documentPosition(std::int64_t position) const;

  [[nodiscard]] base::Caret caret(int documentPosition) const;
  [[nodiscard]] std::uint64_t revision() const { return revision_; }

 private:
  void recount(QTextBlock block);
  // While the whole text is replaced, the toolkit's caret still stands where it stood in the old one.
  [[nodiscard]] int within(int documentPosition) const;
  [[nodiscard]] base::TextCount countBefore(const QTextBlock& block) const;
  void extendSums(std::size_t count) const;

  const QTextDocument& document_;
  std::shared_ptr<TextTotals> totals_;         // shared, for a document may outlive its index
  mutable std::vector<base::TextCount> sums_;  // [k]: all before paragraph 64 k
  std::uint64_t revision_ = 0;
};

}  // namespace ui
