// The text of an RTF file as it grows: bytes become characters, cells and rows become tabs and lines.
//
// Each call is told the state that holds; what is hidden, deleted or in a destination that is no text is left out.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/document.h"
#include "editor/document_builder.h"
#include "editor/rtf_state.h"
#include "editor/rtf_styles.h"

namespace editor {

/// Joins the two halves of a character beyond U+FFFF, which come as one number each.
class SurrogateJoiner {
 public:
  /// The character that `number` completes; nothing when it is a first half. A half alone is U+FFFD.
  std::optional<char32_t> join(int number);
  [[nodiscard]] bool isCompletedBy(int number) const;
  /// Whether a first half is waiting, which is so no longer.
  bool takeWaiting();

 private:
  char32_t high_ = 0;
};

class RtfText {
 public:
  explicit RtfText(RtfStyles& styles) : styles_(styles) {}

  void put(char32_t character, const RtfState& state);
  /// Takes bytes of the code page in force. Some wait for their second half: settle them before the state changes.
  void putBytes(std::string_view bytes, const RtfState& state);
  void settleBytes(const RtfState& state);
  /// Takes the number of a UTF-16 unit or of a character.
  void putUnit(int number, const RtfState& state);

  void endParagraph(const RtfState& state);
  /// A new page begins a paragraph where none has just begun.
  void breakPage(const RtfState& state);
  void endCell(const RtfState& state);
  void endRow(const RtfState& state);

  /// How many bytes of text there are so far.
  [[nodiscard]] std::size_t written() const { return document_.written(); }
  base::Document finish(const RtfState& state);

 private:
  void append(std::string_view text, const RtfState& state);
  void settle(const RtfState& state);
  std::uint32_t formatOf(const RtfState& state);

  RtfStyles& styles_;
  DocumentBuilder document_;
  SurrogateJoiner surrogates_;
  std::string encoded_;  // bytes that may be halves of characters
  bool cellEnded_ = false;
  bool rowEnded_ = false;                         // by the last line end; a row is not the document's last line
  std::optional<base::Alignment> cellAlignment_;  // of the row's first cell
  base::Alignment textAlignment_ = base::Alignment::left;
};

}  // namespace editor
