// A formatted text as a value: paragraphs of runs, which no window is needed for.
//
// Text is UTF-8, composed (NFC) by whoever lets it in. A paragraph's text holds no line end but U+2028, the break
// inside a paragraph. Formats stand once in a table, so that a document of 400,000 runs does not name its typeface that
// often.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace base {

/// A colour as 0xRRGGBB.
using Rgb = std::uint32_t;

enum class Script { normal, superscript, subscript };
enum class Alignment { left, centre, right, justified };

/// The format of characters.
struct CharFormat {
  std::string family = "Arial";
  double points = 8;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeOut = false;
  Script script = Script::normal;
  std::optional<Rgb> colour = {};  // none: automatic, black on paper

  bool operator==(const CharFormat&) const = default;
};

/// A stretch of a paragraph in one format.
struct Run {
  std::uint32_t size = 0;    // bytes of the paragraph's text
  std::uint32_t format = 0;  // index into Document::formats

  bool operator==(const Run&) const = default;
};

struct Paragraph {
  std::string text;
  std::vector<Run> runs;        // together as long as `text`
  std::uint32_t endFormat = 0;  // of the line end, and so of what is typed into an empty paragraph
  Alignment alignment = Alignment::left;

  bool operator==(const Paragraph&) const = default;
};

struct Document {
  std::vector<CharFormat> formats = {CharFormat{}};
  std::vector<Paragraph> paragraphs = {Paragraph{}};  // one at least

  /// Compares the tables of formats as they stand; sameContent() compares what a reader of the text sees.
  bool operator==(const Document&) const = default;
};

}  // namespace base
