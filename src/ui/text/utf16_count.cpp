// Counting over UTF-16.
#include "ui/text/utf16_count.h"

#include <algorithm>
#include <cstdint>

namespace ui {
namespace {

// What 16 bits can sum without overflow: a vector then holds twice as many sums as with 32.
constexpr std::size_t kChunk = 0xFFFF;

struct ChunkCount {
  std::uint16_t blanks = 0;
  std::uint16_t lineEnds = 0;
};

std::uint16_t one(bool condition) { return static_cast<std::uint16_t>(condition); }

std::uint16_t sum(std::uint16_t a, std::uint16_t b) { return static_cast<std::uint16_t>(a + b); }

ChunkCount countChunk(const char16_t* text, std::size_t length) {
  ChunkCount count;
  for (std::size_t i = 0; i < length; ++i) {
    count.blanks = sum(count.blanks, one(text[i] == u' '));
    count.lineEnds = sum(count.lineEnds, one(text[i] == u'\u2028'));
  }
  return count;
}

// Pairs that begin in the chunk; the unit behind it must exist.
std::uint16_t countPairs(const char16_t* text, std::size_t length) {
  std::uint16_t pairs = 0;
  for (std::size_t i = 0; i < length; ++i) {
    const std::uint16_t high = one((text[i] & 0xFC00) == 0xD800);
    const std::uint16_t low = one((text[i + 1] & 0xFC00) == 0xDC00);
    pairs = sum(pairs, static_cast<std::uint16_t>(high & low));
  }
  return pairs;
}

}  // namespace

base::TextCount countUtf16(const char16_t* text, std::size_t length) {
  base::TextCount total;
  std::int64_t pairs = 0;
  for (std::size_t begin = 0; begin < length; begin += kChunk) {
    const std::size_t size = std::min(kChunk, length - begin);
    const ChunkCount chunk = countChunk(text + begin, size);
    total.blanks += chunk.blanks;
    total.lineEnds += chunk.lineEnds;
    pairs += countPairs(text + begin, begin + size < length ? size : size - 1);
  }
  total.characters = static_cast<std::int64_t>(length) - pairs - total.lineEnds;
  return total;
}

bool reaches(const char16_t* text, std::size_t length, char16_t limit) {
  char16_t largest = 0;
  for (std::size_t i = 0; i < length; ++i) largest = std::max(largest, text[i]);
  return length > 0 && largest >= limit;
}

bool hasUnbrokenRun(const char16_t* text, std::size_t length, std::size_t limit) {
  const auto breaks = [](char16_t unit) { return unit == u' ' || unit == u'\t' || unit == u'\u2028'; };
  std::size_t begin = 0;
  while (length - begin > limit) {
    std::size_t last = begin + limit + 1;
    while (last > begin && !breaks(text[last - 1])) --last;
    if (last == begin) return true;
    begin = last;
  }
  return false;
}

}  // namespace ui
