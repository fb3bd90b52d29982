// Latin letters, capital and small.
#include "editor/letters.h"

#include <algorithm>

namespace editor {
namespace {

constexpr char32_t kSharpS = U'ß';
constexpr char32_t kCapitalSharpS = 0x1E9E;

constexpr bool isWithin(char32_t c, char32_t first, char32_t last) { return c >= first && c <= last; }

constexpr bool isMark(char32_t c) { return isWithin(c, 0x300, 0x36F); }

// Blocks in which capital and small letters take turns, the capital at even or odd numbers.
constexpr bool isEvenCapital(char32_t c) {
  const bool takesTurns = isWithin(c, 0x100, 0x137) || isWithin(c, 0x14A, 0x177) || isWithin(c, 0x1E00, 0x1E95) ||
                          isWithin(c, 0x1EA0, 0x1EFF);
  return takesTurns && c % 2 == 0;
}
constexpr bool isOddCapital(char32_t c) {
  return (isWithin(c, 0x139, 0x148) || isWithin(c, 0x179, 0x17E)) && c % 2 == 1;
}

bool isCapital(char32_t c) { return lowered(c) != c; }
bool isSmall(char32_t c) { return isLetter(c) && !isCapital(c) && !isMark(c) && c != kSharpS; }

}  // namespace

bool isLetter(char32_t c) {
  if (c < 0x80) return isWithin(c, U'A', U'Z') || isWithin(c, U'a', U'z');
  return (isWithin(c, 0xC0, 0x2AF) && c != U'×' && c != U'÷') || isMark(c) || isWithin(c, 0x1E00, 0x1EFF);
}

char32_t lowered(char32_t c) {
  constexpr char32_t kApart = 0x20;
  if (isWithin(c, U'A', U'Z')) return c + kApart;
  if (c < 0xC0) return c;
  if (isWithin(c, 0xC0, 0xDE) && c != U'×') return c + kApart;
  if (c == 0x178) return 0xFF;
  if (c == kCapitalSharpS) return kSharpS;
  return isEvenCapital(c) || isOddCapital(c) ? c + 1 : c;
}

std::u32string lowered(std::u32string_view word) {
  std::u32string result(word);
  for (char32_t& c : result) c = lowered(c);
  return result;
}

bool isInCapitals(std::u32string_view word) {
  return std::count_if(word.begin(), word.end(), isLetter) > 1 && std::any_of(word.begin(), word.end(), isCapital) &&
         std::none_of(word.begin(), word.end(), isSmall);
}

std::u32string withoutCapitals(std::u32string_view word) {
  std::u32string result;
  for (const char32_t c : word) {
    const char32_t small = lowered(c);
    small == kSharpS ? result += U"ss" : result += small;
  }
  return result;
}

}  // namespace editor
