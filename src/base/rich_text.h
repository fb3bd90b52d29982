// The rich-text control as the logic sees it: text and document, selection, formats at the selection, revision.
//
// Plain text has CR LF line ends; a break inside a paragraph (U+2028) is a line end like any other. Positions and
// lengths are code points of that plain text, so a line end counts two and an emoji one. A no-break space is a
// character of its own, never a blank. Text that enters is composed (NFC) by the control, and loses the characters that
// stand for no text (isTextCharacter()).
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "base/document.h"

namespace base {

struct TextSelection {
  std::int64_t start = 0;
  std::int64_t length = 0;

  bool operator==(const TextSelection&) const = default;
};

/// `selection` without what lies outside a text of `length` code points.
constexpr TextSelection clipped(TextSelection selection, std::int64_t length) {
  const std::int64_t room = std::numeric_limits<std::int64_t>::max() - std::max<std::int64_t>(selection.start, 0);
  const std::int64_t end = selection.start + std::clamp<std::int64_t>(selection.length, 0, room);
  const std::int64_t start = std::clamp<std::int64_t>(selection.start, 0, length);
  return {start, std::clamp<std::int64_t>(end, start, length) - start};
}

/// False for what never enters a text: NUL, the mark of an embedded object, and the noncharacters that rich-text
/// controls use to mark frames.
constexpr bool isTextCharacter(char32_t c) { return c != 0 && c != 0xFFFC && !(c >= 0xFDD0 && c <= 0xFDEF); }

/// What of a character format is to change; the rest stays as each character has it.
struct FormatChange {
  std::optional<std::string> family = {};
  std::optional<double> points = {};
  std::optional<bool> bold = {};
  std::optional<bool> italic = {};
  std::optional<bool> underline = {};
  std::optional<bool> strikeOut = {};
  std::optional<Script> script = {};
  std::optional<std::optional<Rgb>> colour = {};  // none within: automatic
};

/// All of `format`.
FormatChange changeTo(const CharFormat& format);
CharFormat changed(CharFormat format, const FormatChange& change);

/// A type size as it is shown: "24", "10.5".
std::string pointsText(double points);

/// Where the caret stands, which is at the end of what select() selected: line and column, both from 1, lines as line
/// ends part them, columns in code points.
struct Caret {
  std::int64_t line = 1;
  std::int64_t column = 1;

  bool operator==(const Caret&) const = default;
};

struct TextChange;
class TextListener;

class RichText {
 public:
  virtual ~RichText() = default;

  [[nodiscard]] virtual std::string plainText() const = 0;
  /// Replaces the whole text; line ends of any kind become CR LF, the selection is at the start, the format of
  /// characters stays.
  virtual void setPlainText(std::string_view text) = 0;

  /// The whole text with its formats, and the same for the selection.
  [[nodiscard]] virtual Document document() const = 0;
  [[nodiscard]] virtual Document selectedDocument() const = 0;
  /// Replaces the whole text with its formats; the caret is at the start.
  virtual void setDocument(const Document& document) = 0;

  [[nodiscard]] virtual TextSelection selection() const = 0;
  /// Selects; what lies outside the text is cut off. A position between CR and LF moves behind the LF.
  virtual void select(TextSelection selection) = 0;
  [[nodiscard]] virtual std::string selectedText() const = 0;
  /// Puts `text` in the place of the selection as if it had been typed; the caret is behind it. A line that is left
  /// empty keeps the format that text typed before would have had;
  /// paragraphs that become one keep the alignment of the first of which something is left.
  virtual void replaceSelection(std::string_view text) = 0;
  /// The same with formats of its own. A paragraph of which nothing else is left takes the alignment it has in
  /// `document`, one that joins what was there keeps its own.
  virtual void replaceSelection(const Document& document) = 0;

  /// Counts without copying the text: the whole text is counted as it changes, not when it is asked.
  [[nodiscard]] virtual TextCount countAll() const = 0;
  [[nodiscard]] virtual TextCount countSelection() const = 0;

  /// The format of the first selected character, which may be a line end; with nothing selected that of what is typed
  /// next, which is that of the character before the caret or, at the start of a paragraph, behind it.
  [[nodiscard]] virtual CharFormat format() const = 0;
  /// Gives the selection, or what is typed next when nothing is selected, this format.
  void setFormat(const CharFormat& format) { changeFormat(changeTo(format)); }
  /// The same for a part of the format: a selection of several typefaces made bold keeps them. A selection up to the
  /// end of the text takes the last line's end with it.
  virtual void changeFormat(const FormatChange& change) = 0;

  /// Of the first paragraph of the selection.
  [[nodiscard]] virtual Alignment alignment() const = 0;
  /// For every paragraph of which something is selected, its line end included, or that of the caret.
  virtual void setAlignment(Alignment alignment) = 0;

  /// Puts `fragment`, which a TextChange of this text told, in the place of `place` exactly as it was there, even where
  /// its ends meet the text; the caret is behind it.
  virtual void exchange(TextSelection place, const Document& fragment) = 0;

  [[nodiscard]] virtual Caret caret() const = 0;
  /// Grows with every change of the text; a change of formats alone may count as one.
  [[nodiscard]] virtual std::uint64_t revision() const = 0;

  /// Tells `listener`, which must outlive that, of all that happens to the text from now on, whoever does it; without
  /// one nobody is told, and the text need not know what it was before.
  virtual void tell(TextListener* listener) = 0;
};

}  // namespace base
