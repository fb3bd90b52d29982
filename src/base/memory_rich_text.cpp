// The rich text that lives in memory alone.
#include "base/memory_rich_text.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/text.h"

namespace base {
namespace {

// No character below this one ever joins the character before it.
constexpr char32_t kFirstCombining = 0x0300;

CharFormat merged(CharFormat format, const FormatChange& change) {
  format.family = change.family.value_or(format.family);
  format.points = change.points.value_or(format.points);
  format.bold = change.bold.value_or(format.bold);
  format.italic = change.italic.value_or(format.italic);
  format.underline = change.underline.value_or(format.underline);
  return format;
}

}  // namespace

MemoryRichText::MemoryRichText(Composer composer) : composer_(std::move(composer)) {}

std::string MemoryRichText::plainText() const { return utf8({0, text_.size()}); }

void MemoryRichText::setPlainText(std::string_view text) {
  const std::size_t format = formatIndex();
  text_ = entering(text);
  if (composer_) text_ = composed({0, text_.size()});
  emptyFormat_ = format;
  typedNext_ = format;
  selection_ = {};
  changed();
}

void MemoryRichText::select(TextSelection selection) {
  const TextSelection inside = clipped(selection, static_cast<std::int64_t>(text_.size()));
  const std::size_t start = behindLineEnd(inside.start);
  const std::size_t end = behindLineEnd(inside.start + inside.length);
  selection_ = {static_cast<std::int64_t>(start), static_cast<std::int64_t>(end - start)};
  typedNext_.reset();
}

std::string MemoryRichText::selectedText() const { return utf8(selected()); }

void MemoryRichText::replaceSelection(std::string_view text) {
  const Piece old = selected();
  emptyFormat_ = formatIndex();
  const Characters entered = entering(text);
  replace(old, entered);
  std::size_t caret = old.begin + entered.size();
  if (composer_) {
    const Piece piece = composing({old.begin, caret});
    const Characters whole = composed(piece);
    caret = piece.begin + composed({piece.begin, caret}).size();
    caret = std::min(caret, piece.begin + whole.size());
    replace(piece, whole);
  }
  selection_ = {static_cast<std::int64_t>(caret), 0};
  typedNext_.reset();
  changed();
}

TextCount MemoryRichText::countSelection() const { return count(selected()); }

CharFormat MemoryRichText::format() const { return formats_[formatIndex()]; }

void MemoryRichText::changeFormat(const FormatChange& change) {
  if (selection_.length == 0) {
    const std::size_t index = indexOf(merged(format(), change));
    typedNext_ = index;
    if (text_.empty()) emptyFormat_ = index;
    return;
  }
  const Piece piece = selected();
  for (std::size_t i = piece.begin; i < piece.end; ++i) {
    text_[i].format = indexOf(merged(formats_[text_[i].format], change));
  }
  ++revision_;
}

Caret MemoryRichText::caret() const {
  const std::size_t position = selected().end;
  std::size_t lineStart = position;
  while (lineStart > 0 && text_[lineStart - 1].codePoint != U'\n') --lineStart;
  return {count({0, position}).lineEnds + 1, static_cast<std::int64_t>(position - lineStart) + 1};
}

// Characters in the format at the caret.
MemoryRichText::Characters MemoryRichText::entering(std::string_view text) const {
  const std::string lines = withWindowsLineEnds(text);
  const std::size_t format = formatIndex();
  Characters result;
  result.reserve(lines.size());
  for (std::string_view rest = lines; !rest.empty();) {
    const char32_t c = takeCodePoint(rest);
    if (isTextCharacter(c)) result.push_back({c, format});
  }
  return result;
}

// What does not change keeps its format, what does has that of the first character it replaces.
MemoryRichText::Characters MemoryRichText::composed(Piece piece) const {
  const auto at = [this](std::size_t index) { return text_.begin() + static_cast<std::ptrdiff_t>(index); };
  Characters result(at(piece.begin), at(piece.end));
  Characters target;
  const std::string utf8Text = composer_(utf8(piece));
  for (std::string_view rest = utf8Text; !rest.empty();) target.push_back({takeCodePoint(rest), 0});
  const auto same = [](const Character& a, const Character& b) { return a.codePoint == b.codePoint; };
  const auto [oldBegin, newBegin] = std::mismatch(result.begin(), result.end(), target.begin(), target.end(), same);
  if (oldBegin == result.end()) return result;
  const auto [oldEnd, newEnd] = std::mismatch(result.rbegin(), std::make_reverse_iterator(oldBegin), target.rbegin(),
                                              std::make_reverse_iterator(newBegin), same);
  for (auto changed = newBegin; changed != newEnd.base(); ++changed) changed->format = oldBegin->format;
  const auto gap = result.erase(oldBegin, oldEnd.base());
  result.insert(gap, newBegin, newEnd.base());
  return result;
}

bool MemoryRichText::isLineEnd(std::size_t index) const {
  return text_[index].codePoint == U'\r' || text_[index].codePoint == U'\n';
}

MemoryRichText::Piece MemoryRichText::selected() const {
  const auto start = static_cast<std::size_t>(selection_.start);
  return {start, start + static_cast<std::size_t>(selection_.length)};
}

// The characters of `changed` with the neighbours that may join them.
MemoryRichText::Piece MemoryRichText::composing(Piece changed) const {
  const auto joins = [this](std::size_t i) { return i < text_.size() && text_[i].codePoint >= kFirstCombining; };
  while (changed.begin > 0 && joins(changed.begin)) --changed.begin;
  while (joins(changed.end)) ++changed.end;
  return changed;
}

std::size_t MemoryRichText::behindLineEnd(std::int64_t position) const {
  const auto index = static_cast<std::size_t>(position);
  const bool between = index > 0 && index < text_.size() && text_[index].codePoint == U'\n';
  return between ? index + 1 : index;
}

std::size_t MemoryRichText::formatIndex() const {
  if (typedNext_) return *typedNext_;
  if (text_.empty()) return emptyFormat_;
  const auto [start, end] = selected();
  if (start < end) return text_[start].format;
  const bool atLineStart = start == 0 || isLineEnd(start - 1);
  const bool emptyLine = start == text_.size() || isLineEnd(start);
  return start == 0 || (atLineStart && !emptyLine) ? text_[start].format : text_[start - 1].format;
}

std::size_t MemoryRichText::indexOf(const CharFormat& format) {
  const auto found = std::find(formats_.begin(), formats_.end(), format);
  const auto index = static_cast<std::size_t>(found - formats_.begin());
  if (found == formats_.end()) formats_.push_back(format);
  return index;
}

std::string MemoryRichText::utf8(Piece piece) const {
  std::string result;
  result.reserve(piece.end - piece.begin);
  for (std::size_t i = piece.begin; i < piece.end; ++i) appendCodePoint(result, text_[i].codePoint);
  return result;
}

TextCount MemoryRichText::count(Piece piece) const {
  TextCount result;
  for (std::size_t i = piece.begin; i < piece.end; ++i) {
    if (text_[i].codePoint == U'\n') ++result.lineEnds;
    if (text_[i].codePoint == U' ') ++result.blanks;
    if (!isLineEnd(i)) ++result.characters;
  }
  return result;
}

void MemoryRichText::replace(Piece piece, const Characters& characters) {
  const auto at = [this](std::size_t index) { return text_.begin() + static_cast<std::ptrdiff_t>(index); };
  const auto gap = text_.erase(at(piece.begin), at(piece.end));
  text_.insert(gap, characters.begin(), characters.end());
}

void MemoryRichText::changed() {
  count_ = count({0, text_.size()});
  ++revision_;
}

}  // namespace base
