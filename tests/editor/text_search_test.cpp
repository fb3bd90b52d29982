// Searching a text without regard to letter case.
#include "editor/text_search.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Places = std::vector<std::int64_t>;

TEST(TextSearch, FindsAllPlacesWhateverTheCase) {
  const struct {
    std::string text, sought;
    Places places;
  } rows[] = {{"Bäckerei BÄCKEREI bäckerei", "bÄck", {0, 9, 18}},
              {"Straße STRASSE", "strasse", {7}},
              {"Straße STRASSE", "STRAßE", {0}},
              {"😀ß\r\nŻółw", "żÓŁ", {4}},
              {"aaaaa", "aa", {0, 2}},
              {"aabaabaaab", "AABAAAB", {3}},
              {"abc", "abcd", {}},
              {"abc", "", {}}};
  for (const auto& [text, sought, places] : rows) {
    EXPECT_EQ(editor::findAll(editor::folded(text), editor::folded(sought)), places) << text << " | " << sought;
  }
}

}  // namespace
