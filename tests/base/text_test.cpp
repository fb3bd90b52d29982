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
  const Row rows[] = {{"", 0, true},
                      {"Größe", 5, true},
                      {"😀", 1, true},
                      {"a\xCC\x88", 2, true},
                      {"\xFF", 1, false},
                      {"a\xC3", 2, false},
                      {"\xC0\xAF", 2, false},
                      {"\xED\xA0\x80", 3, false},
                      {"\xF4\x90\x80\x80", 4, false},
                      {std::string("a\0b", 3), 3, true}};
  for (const Row& row : rows) {
    EXPECT_EQ(base::codePointCount(row.text), row.length) << row.text;
    EXPECT_EQ(base::isValidUtf8(row.text), row.valid) << row.text;
  }
  EXPECT_EQ(base::firstCodePoints("äöü", 2), "äö");
  EXPECT_EQ(base::firstCodePoints("ä", 5), "ä");
}

}  // namespace
