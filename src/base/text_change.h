// A change of a rich text as a value, and those who follow changes.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/document.h"
#include "base/rich_text.h"

namespace base {

/// One fragment gave way to another; what stands around them did not change.
///
/// A fragment tells all that its place can have: the alignment of its paragraphs, the first and the last included, and
/// the format of the line end behind it. Either may be empty; a change of formats has the same text in both.
struct TextChange {
  std::int64_t start = 0;  // code points before it
  Document removed;
  Document inserted;
  TextSelection before = {};  // the selection before the change and after it
  TextSelection after = {};
};

/// Follows a text. It must not change the text while it is told.
class TextListener {
 public:
  virtual ~TextListener() = default;

  virtual void changed(TextChange change) = 0;
  /// The whole text was set anew.
  virtual void replaced() = 0;
  /// Not by a change.
  virtual void selectionMoved() = 0;
};

/// Whole paragraphs of a text.
struct ParagraphsView {
  const std::vector<CharFormat>& formats;
  std::span<const Paragraph> paragraphs;
};

/// What made `before` into `after`, its start counted from theirs and as small as can be; nothing when they are equal.
/// Where it could stand at several places, as when a letter joins its like, it stands nearest to `caret`.
std::optional<TextChange> differenceOf(const ParagraphsView& before, const ParagraphsView& after, std::int64_t caret);

/// Joins the first paragraph of `tail` to the last of `head`, which takes the alignment and line end of `tail`.
void append(Document& head, const Document& tail);

/// The code points of `fragment`.
std::int64_t lengthOf(const Document& fragment);

}  // namespace base
