// Formatted paragraphs as one text, which costs short lines no more memory than long ones.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/document.h"
#include "base/stretches.h"

namespace base {

/// Brings a text into normalization form C.
using Composer = std::function<std::string(std::string_view)>;

/// A line feed ends each paragraph; the last one of a piece that is to be inserted has none.
struct FlatText {
  std::string text;                  // well-formed, without line ends but the line feeds and U+2028
  Stretches<std::uint32_t> formats;  // of each byte, as a number that the owner knows
  Stretches<Alignment> alignments;   // of each paragraph

  void append(std::string_view more, std::uint32_t format) {
    text += more;
    formats.append(more.size(), format);
  }
  /// Text and formats only.
  void replace(std::size_t begin, std::size_t end, const FlatText& piece);
  /// Composes what two texts, each composed, form where they meet. What does not change keeps its format. Returns where
  /// the caret moves to, which stands at the seam or behind it.
  std::size_t composeAt(std::size_t seam, std::size_t caret, const Composer& composer);
  [[nodiscard]] std::size_t paragraphOf(std::size_t offset) const;
};

enum class Breaks { endParagraphs, stayBreaks };

/// `text` fit for a flat one: ill-formed bytes as U+FFFD, without what is no text; each line end a line feed, U+2028
/// among them or not.
std::string flatLines(std::string_view text, Breaks breaks);

/// `text` composed, in time linear in its length.
std::string composed(std::string text, const Composer& composer);

}  // namespace base
