// What holds at one place of an RTF file, and ends with the group: formats, destination, length of fallbacks.
//
// A state is numbers only and cheap to copy, since every group keeps one.
#pragma once

#include <cstdint>

#include "base/document.h"
#include "editor/rtf_words.h"

namespace editor {

/// The properties of characters, as the file names them.
struct RtfCharacters {
  static constexpr std::uint16_t kDefaultFont = 0xFFFF;  // the document's, whose number may come later
  static constexpr std::uint16_t kNoColour = 0xFFFF;     // beyond every table; number 0 may be a colour
  static constexpr std::uint16_t kDefaultSize = 24;

  std::uint16_t font = kDefaultFont;
  std::uint16_t halfPoints = kDefaultSize;
  std::uint16_t colour = kNoColour;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeOut = false;
  bool doubleStrikeOut = false;
  base::Script script = base::Script::normal;

  /// All of it in one number.
  [[nodiscard]] std::uint64_t key() const {
    const unsigned marks = (bold ? 1U : 0U) | (italic ? 2U : 0U) | (underline ? 4U : 0U) | (strikeOut ? 8U : 0U) |
                           (doubleStrikeOut ? 16U : 0U) | static_cast<unsigned>(script) << 5U;
    return std::uint64_t{font} | std::uint64_t{halfPoints} << 16U | std::uint64_t{colour} << 32U |
           std::uint64_t{marks} << 48U;
  }
};

struct RtfState {
  RtfCharacters characters;
  bool hidden = false;
  bool deleted = false;
  base::Alignment alignment = base::Alignment::left;
  int fallbackLength = 1;  // characters behind a \u that stand for it in older readers
  Destination destination = Destination::text;
  bool starred = false;      // the next word names a destination, which may be passed over
  bool opensField = false;   // the field ends with this group
  bool restSkipped = false;  // nothing more of this group is text
};

}  // namespace editor
