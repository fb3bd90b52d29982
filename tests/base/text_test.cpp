// UTF-8 helpers on well-formed and broken text.
#include "base/text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Text, LengthsAreCodePoints) {
  struct Row {
    std::string text;
    std::size_t length;
    bool valid;
  };
  const Row rows[] = {
      {"", 0, true},
      {"Größe", 5, true},
      {"😀", 1, true},
      {"a\xCC\x88", 2, true},
      {"\xFF", 1, false},
      {"a\xC3", 2, false},
      {"\xC0\xAF", 2, false},
      {"\xED\xA0\x80", 3, false},
      {"\xF4\x90\x80\x80", 4, false},
      {std::string("a\0b", 3), 3, true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(base::codePointCount(row.text), row.length) << row.text;
    EXPECT_EQ(base::isValidUtf8(row.text), row.valid) << row.text;
  }
  EXPECT_EQ(base::firstCodePoints("äöü", 2), "äö");
  EXPECT_EQ(base::firstCodePoints("ä", 5), "ä");
}

TEST(Text, CodePointsGoOutAndInUnchanged) {
  std::string_view rest = "aß€😀\xFF";
  std::u32string codePoints;
  std::string again;
  while (!rest.empty()) {
    codePoints += base::takeCodePoint(rest);
    base::appendCodePoint(again, codePoints.back());
  }
  EXPECT_EQ(codePoints, U"aß€😀\uFFFD");
  EXPECT_EQ(again, "aß€😀\uFFFD");
}

TEST(Text, LineEndsOfAnyKindBecomeCrLf) {
  EXPECT_EQ(base::withWindowsLineEnds("a\r\nb\nc\rd\u2028e\u2029f\n\r\ng\r"),
            "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n\r\ng\r\n");
  EXPECT_EQ(base::withWindowsLineEnds("€ bleibt"), "€ bleibt");
}

}  // namespace
