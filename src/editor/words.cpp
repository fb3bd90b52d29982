// The words of a text.
#include "editor/words.h"

#include <algorithm>
#include <array>

#include "editor/letters.h"

namespace editor {
namespace {

constexpr char32_t kSoftHyphen = 0xAD;

bool isDigit(char32_t c) { return (c >= U'0' && c <= U'9') || c == U'²' || c == U'³' || c == U'¹'; }

// With any of these it is a figure or a name of the technical kind.
bool makesNoWord(char32_t c) { return isDigit(c) || c == U'_' || c == U'%'; }

bool isHyphen(char32_t c) { return c == U'-' || c == 0x2010 || c == 0x2011; }
bool isApostrophe(char32_t c) { return c == U'\'' || c == 0x2019 || c == 0x2BC; }

bool isOfWord(char32_t c) {
  return isLetter(c) || makesNoWord(c) || isHyphen(c) || isApostrophe(c) || c == kSoftHyphen;
}

bool isLetterOrDigit(char32_t c) { return isLetter(c) || isDigit(c); }

// Where the last label of a dotted name begins, as "de" in "huber.de/kontakt"; nothing where no dot stands between
// letters.
std::optional<std::size_t> lastLabel(std::u32string_view piece) {
  const std::u32string_view name = piece.substr(0, piece.find_first_of(U"/?:"));
  std::optional<std::size_t> label;
  for (std::size_t i = 1; i + 1 < name.size(); ++i) {
    if (name[i] == U'.' && isLetterOrDigit(name[i - 1]) && isLetterOrDigit(name[i + 1])) label = i + 1;
  }
  return label;
}

// Signs set dots between words, too: "Heizung.Sanitär.Klima". A domain or the kind of a file is short or small.
bool isDottedName(std::u32string_view piece) {
  constexpr std::ptrdiff_t kLongestLabel = 4;
  const auto start = lastLabel(piece);
  if (!start) return false;
  const auto label = piece.substr(*start);
  const auto* const end = std::find_if_not(label.begin(), label.end(), isLetterOrDigit);
  return end - label.begin() <= kLongestLabel || lowered(label.front()) == label.front() ||
         std::any_of(label.begin(), end, isDigit);
}

bool isAddress(std::u32string_view piece) {
  constexpr std::array<std::u32string_view, 4> kMarks = {U"@", U"://", U"\\", U"www."};
  const auto holds = [piece](std::u32string_view mark) { return piece.find(mark) != std::u32string_view::npos; };
  return std::any_of(kMarks.begin(), kMarks.end(), holds) || isDottedName(piece);
}

char32_t plain(char32_t c) { return isHyphen(c) ? U'-' : isApostrophe(c) ? U'\'' : c; }

}  // namespace

std::u32string_view stemOf(std::u32string_view text) {
  const bool hasTail = !text.empty() && (text.back() == U'.' || text.back() == U'-');
  return text.substr(0, text.size() - (hasTail ? 1 : 0));
}

bool isGap(char32_t c) {
  return c <= U' ' || c == 0xA0 || c == 0x2028 || c == 0x2029 || (c >= 0x2000 && c <= 0x200B) || c == 0x202F;
}

// What a word is depends on all that it hangs together with, so the first piece is looked at from its start.
WordScanner::WordScanner(std::u32string_view text, std::size_t from)
    : text_(text), from_(from), at_(std::min(from, text.size())) {
  while (at_ > 0 && !isGap(text_[at_ - 1])) --at_;
  pieceEnd_ = at_;
}

// Goes on to a piece that may hold words; false at the end of the text.
bool WordScanner::enterPiece() {
  for (; at_ < text_.size(); at_ = pieceEnd_) {
    while (at_ < text_.size() && isGap(text_[at_])) ++at_;
    pieceEnd_ = at_;
    while (pieceEnd_ < text_.size() && !isGap(text_[pieceEnd_])) ++pieceEnd_;
    if (at_ < pieceEnd_ && !isAddress(text_.substr(at_, pieceEnd_ - at_))) return true;
  }
  return false;
}

std::optional<Word> WordScanner::next() {
  for (;;) {
    while (at_ < pieceEnd_ && !isOfWord(text_[at_])) ++at_;
    if (at_ >= pieceEnd_ && !enterPiece()) return std::nullopt;
    const std::size_t begin = at_;
    while (at_ < pieceEnd_ && isOfWord(text_[at_])) ++at_;
    auto word = wordBetween(begin, at_);
    if (word && word->end() > from_) return word;
  }
}

std::optional<Word> WordScanner::wordBetween(std::size_t begin, std::size_t end) const {
  const std::u32string_view run = text_.substr(begin, end - begin);
  if (std::any_of(run.begin(), run.end(), makesNoWord)) return std::nullopt;
  while (begin < end && !isLetter(text_[begin])) ++begin;
  while (begin < end && !isLetter(text_[end - 1])) --end;
  Word word{.start = begin, .length = end - begin, .text = {}};
  for (const char32_t c : text_.substr(begin, end - begin)) {
    if (c != kSoftHyphen) word.text += plain(c);
  }
  if (word.text.size() < 2) return std::nullopt;
  if (end < text_.size() && text_[end] == U'.') word.text += U'.';
  if (end < text_.size() && isHyphen(text_[end])) word.text += U'-';
  return word;
}

}  // namespace editor
