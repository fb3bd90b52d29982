// The growing text of an RTF file.
#include "editor/rtf_text.h"

#include <utility>

#include "base/rich_text.h"
#include "base/text.h"
#include "editor/code_pages.h"

namespace editor {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kParagraphSeparator = 0x2029;

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Writers give the number of a UTF-16 unit with a sign or without one, some that of the character itself.
char32_t unitOf(int number) {
  const int value = number < 0 ? number + 0x10000 : number;
  return value < 0 || value > 0x10FFFF ? kReplacement : static_cast<char32_t>(value);
}

bool isShown(const RtfState& state) {
  return state.destination == Destination::text && !state.hidden && !state.deleted;
}

bool isPrintable(char byte) { return (byte >= 0x20 && byte <= 0x7E) || byte == '\t'; }

}  // namespace

std::optional<char32_t> SurrogateJoiner::join(int number) {
  const char32_t unit = unitOf(number);
  const char32_t high = std::exchange(high_, 0);
  if (isLowSurrogate(unit)) return high == 0 ? kReplacement : 0x10000 + ((high - 0xD800) << 10U) + (unit - 0xDC00);
  if (!isHighSurrogate(unit)) return unit;
  high_ = unit;
  return std::nullopt;
}

bool SurrogateJoiner::isCompletedBy(int number) const { return high_ != 0 && isLowSurrogate(unitOf(number)); }

bool SurrogateJoiner::takeWaiting() { return std::exchange(high_, 0) != 0; }

void RtfText::put(char32_t character, const RtfState& state) {
  settleBytes(state);
  if (!isShown(state)) return;
  if (character == kParagraphSeparator) return endParagraph(state);
  if (!base::isTextCharacter(character) || (character < 0x20 && character != U'\t')) return;
  std::string text;
  base::appendCodePoint(text, character);
  append(text, state);
}

// Printable ASCII speaks for itself in every page but that of symbols, unless it may be the second half of a character.
void RtfText::putBytes(std::string_view bytes, const RtfState& state) {
  if (!isShown(state) || bytes.empty()) return;
  const CodePage& page = *styles_.of(state.characters).page;
  const bool printable = isPrintable(bytes.front());
  const bool inHalves = page.kind == CodePage::Kind::doubleByte || page.kind == CodePage::Kind::utf8;
  if (inHalves && (!printable || !encoded_.empty())) {
    encoded_ += bytes;
  } else if (printable && page.kind != CodePage::Kind::symbol) {
    append(bytes, state);
  } else {
    for (const char byte : bytes) put(characterOf(page, static_cast<unsigned char>(byte)), state);
  }
}

void RtfText::settleBytes(const RtfState& state) {
  if (encoded_.empty()) return;
  std::string text;
  appendDecoded(text, *styles_.of(state.characters).page, std::exchange(encoded_, {}));
  for (std::string_view rest = text; !rest.empty();) put(base::takeCodePoint(rest), state);
}

void RtfText::putUnit(int number, const RtfState& state) {
  if (!isShown(state)) return;
  if (!surrogates_.isCompletedBy(number)) settle(state);
  if (const std::optional<char32_t> character = surrogates_.join(number)) put(*character, state);
}

void RtfText::append(std::string_view text, const RtfState& state) {
  settle(state);
  document_.append(text, formatOf(state));
  textAlignment_ = state.alignment;
}

// Writes what was waiting for what follows: half of a pair that has no other half, the tab behind a cell.
void RtfText::settle(const RtfState& state) {
  if (surrogates_.takeWaiting()) append("\uFFFD", state);
  if (std::exchange(cellEnded_, false)) document_.append("\t", formatOf(state));
}

std::uint32_t RtfText::formatOf(const RtfState& state) {
  RtfStyles::Style& style = styles_.of(state.characters);
  if (!style.format) style.format = document_.indexOf(styles_.formatOf(state.characters));
  return *style.format;
}

void RtfText::endParagraph(const RtfState& state) {
  if (state.destination != Destination::text) return;
  settle(state);
  document_.endParagraph(formatOf(state), state.alignment);
  cellAlignment_.reset();
  rowEnded_ = false;
}

void RtfText::breakPage(const RtfState& state) {
  if (!document_.atParagraphStart() || cellEnded_) endParagraph(state);
}

// The tab waits, for the last cell of a row has none behind it. A row is aligned as its first cell is.
void RtfText::endCell(const RtfState& state) {
  if (state.destination != Destination::text) return;
  settle(state);
  if (!cellAlignment_) cellAlignment_ = state.alignment;
  cellEnded_ = true;
}

void RtfText::endRow(const RtfState& state) {
  if (state.destination != Destination::text) return;
  const bool hasCells = std::exchange(cellEnded_, false);
  settle(state);
  if (hasCells || !document_.atParagraphStart()) {
    document_.endParagraph(formatOf(state), cellAlignment_.value_or(state.alignment));
    rowEnded_ = true;
  }
  cellAlignment_.reset();
}

base::Document RtfText::finish(const RtfState& state) {
  settleBytes(state);
  cellEnded_ = false;
  settle(state);
  if (!document_.atParagraphStart()) {
    document_.endParagraph(document_.lastFormat(), textAlignment_);
  } else if (!document_.hasParagraphs() || rowEnded_) {
    document_.endParagraph(formatOf(state), state.alignment);
  }
  return document_.take();
}

}  // namespace editor
