// A formatted text as a value: paragraphs of runs, which no window is needed for.
//
// Text is UTF-8, composed (NFC) by whoever lets it in. A paragraph's text holds no line end but U+2028, the break
// inside a paragraph. Formats stand once in a table, so that a document of 400,000 runs does not name its typeface that
// often.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
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

/// What the calculation needs of a text: its code points without line ends, and how many of those are blanks (U+0020).
struct TextCount {
  std::int64_t characters = 0;
  std::int64_t blanks = 0;
  std::int64_t lineEnds = 0;

  bool operator==(const TextCount&) const = default;
};

constexpr TextCount operator+(const TextCount& a, const TextCount& b) {
  return {a.characters + b.characters, a.blanks + b.blanks, a.lineEnds + b.lineEnds};
}
constexpr TextCount operator-(const TextCount& a, const TextCount& b) {
  return {a.characters - b.characters, a.blanks - b.blanks, a.lineEnds - b.lineEnds};
}
/// As a stretch of plain text, in which a line end (CR LF) is two code points.
constexpr std::int64_t codePoints(const TextCount& count) { return count.characters + 2 * count.lineEnds; }

/// The break inside a paragraph, U+2028.
inline constexpr std::string_view kLineSeparator = "\xE2\x80\xA8";

/// Counts a piece of well-formed UTF-8 in which a line feed or U+2028 is a line end.
[[nodiscard]] TextCount countText(std::string_view text);
[[nodiscard]] TextCount countText(const Document& document);

/// With CR LF at the end of every paragraph but the last, and for each U+2028.
[[nodiscard]] std::string plainText(const Document& document);

/// `text` in one format; line ends of any kind part its paragraphs.
[[nodiscard]] Document plainDocument(std::string_view text, const CharFormat& format);

/// Whether who reads both sees no difference: the numbering of formats, how a stretch in one format is cut into runs,
/// and the format of a line end behind text do not count.
[[nodiscard]] bool sameContent(const Document& a, const Document& b);

}  // namespace base
