// The control words that a reader of text has to know, of five kinds, in one table.
//
// What is not in the table has no effect on the text or its format, unless \* announces it as a destination.
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

namespace editor {

/// What the group holds from here to its end.
enum class Destination : std::uint8_t {
  text,
  skipped,  // nothing that is text
  fontTable,
  colourTable,
  field,
  fieldInstruction,
  alternatives,  // the same twice: for old readers, and in a \ud group
  unicode,       // that \ud group
  attachment,    // a file's name; behind it stands a mark that is no text either
};

/// Something to be done once.
enum class Flag : std::uint8_t {
  endParagraph,
  breakPage,
  endCell,
  endRow,
  resetCharacters,
  resetParagraph,
  alignLeft,
  alignCentre,
  alignRight,
  justify,
  noUnderline,
  noScript,
  pageAnsi,
  pageMac,
  pagePc,
  pagePcMultilingual,
};

/// A character.
struct Symbol {
  char32_t character;
};

/// A property of characters that a parameter of 0 switches off.
enum class Toggle : std::uint8_t {
  bold,
  italic,
  underline,
  strikeOut,
  doubleStrikeOut,
  superscript,
  subscript,
  hidden,
  deleted,
};

/// A number to be kept.
enum class Value : std::uint8_t {
  font,
  halfPoints,
  colour,
  raisedBy,
  loweredBy,
  unicode,
  fallbackLength,
  defaultFont,
  documentPage,
  fontCharset,
  fontPage,
  red,
  green,
  blue,
};

using Meaning = std::variant<Destination, Flag, Symbol, Toggle, Value>;

/// What a control word means, by its whole name; null when it means nothing to us.
const Meaning* meaningOf(std::string_view word);

}  // namespace editor
