// Formatted paragraphs as one text.
#include "base/flat_text.h"

#include <algorithm>

#include "base/rich_text.h"
#include "base/text.h"

namespace base {
namespace {

// The composer is asked for pieces of about this size, so that what it needs on the way stays small.
constexpr std::size_t kComposedAtOnce = 65536;

// Longer runs of marks mean nothing; a limit keeps a text without blanks from being composed as a whole at every key.
constexpr int kLongestCluster = 64;

constexpr char32_t kParagraphSeparator = 0x2029;

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// No character below U+0300 joins the one before it; in UTF-8 all others begin with 0xCC or above.
bool mayJoin(char byte) { return static_cast<unsigned char>(byte) >= 0xCC; }

bool mayJoin(std::string_view text, std::size_t i) { return i < text.size() && mayJoin(text[i]); }

std::size_t next(std::string_view text, std::size_t i) {
  do ++i;
  while (i < text.size() && isContinuation(text[i]));
  return i;
}

std::size_t previous(std::string_view text, std::size_t i) {
  do --i;
  while (i > 0 && isContinuation(text[i]));
  return i;
}

std::size_t plainLength(std::string_view text) {
  const auto isPlain = [](char c) { return c > 0 && c != '\r' && c != '\n'; };
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
}

// The end of the part of `text` that can be composed by itself.
std::size_t partEnd(std::string_view text) {
  std::size_t end = std::min(kComposedAtOnce, text.size());
  while (end < text.size() && (isContinuation(text[end]) || mayJoin(text[end]))) ++end;
  return end;
}

struct Piece {
  std::size_t begin;
  std::size_t end;
};

// The characters around `seam` that may join each other.
Piece clusterAt(std::string_view text, std::size_t seam) {
  Piece result{seam, seam};
  for (int i = 0; i < kLongestCluster && result.begin > 0 && mayJoin(text, result.begin); ++i) {
    result.begin = previous(text, result.begin);
  }
  for (int i = 0; i < kLongestCluster && mayJoin(text, result.end); ++i) result.end = next(text, result.end);
  return result;
}

}  // namespace

void FlatText::replace(std::size_t begin, std::size_t end, const FlatText& piece) {
  text.replace(begin, end - begin, piece.text);
  formats.replace(begin, end, piece.formats);
}

std::size_t FlatText::composeAt(std::size_t seam, std::size_t caret, const Composer& composer) {
  if (!composer || seam == 0 || !mayJoin(text, seam)) return caret;
  const Piece piece = clusterAt(text, seam);
  const std::string cluster = text.substr(piece.begin, piece.end - piece.begin);
  const std::string whole = composer(cluster);
  if (whole == cluster) return caret;
  // Within the cluster the caret stays behind as many characters as those before it make.
  const std::string before = composer(text.substr(piece.begin, std::min(caret, piece.end) - piece.begin));
  const std::size_t shown = firstCodePoints(whole, codePointCount(before)).size();

  const std::size_t head = commonHead(cluster, whole);
  const std::size_t tail = commonTail(std::string_view(cluster).substr(head), std::string_view(whole).substr(head));
  FlatText change;
  change.append(std::string_view(whole).substr(head, whole.size() - head - tail),
                formats.at(std::min(piece.begin + head, piece.end - 1)));
  replace(piece.begin + head, piece.end - tail, change);
  return caret < piece.end ? piece.begin + shown : caret - cluster.size() + whole.size();
}

std::size_t FlatText::paragraphOf(std::size_t offset) const {
  return static_cast<std::size_t>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(offset), '\n'));
}

std::string flatLines(std::string_view text, Breaks breaks) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t plain = plainLength(text);
    result += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty()) break;
    const char32_t c = takeCodePoint(text);
    if (c == U'\r' && text.starts_with('\n')) text.remove_prefix(1);
    const bool separates = c == kParagraphSeparator || (c == 0x2028 && breaks == Breaks::endParagraphs);
    if (c == U'\r' || c == U'\n' || separates) {
      result += '\n';
    } else if (isTextCharacter(c)) {
      appendCodePoint(result, c);
    }
  }
  return result;
}

std::string composed(std::string text, const Composer& composer) {
  if (!composer || std::none_of(text.begin(), text.end(), [](char c) { return mayJoin(c); })) return text;
  std::string result;
  result.reserve(text.size());
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t end = partEnd(rest);
    result += composer(rest.substr(0, end));
    rest.remove_prefix(end);
  }
  return result;
}

}  // namespace base
