// Searching a text without regard to letter case.
#include "editor/text_search.h"

#include <algorithm>
#include <locale>
#include <stdexcept>

#include "base/text.h"

namespace editor {
namespace {

// Which letter is the lower case of which must not depend on the language that the program is started in.
const std::locale& letterRules() {
  static const std::locale rules = [] {
    try {
      return std::locale("C.UTF-8");
    } catch (const std::runtime_error&) {
      return std::locale();  // a system without it still finds what is spelt alike
    }
  }();
  return rules;
}

constexpr char32_t lowerAscii(char32_t c) { return c >= U'A' && c <= U'Z' ? c + (U'a' - U'A') : c; }

// Finds one text in another by stepping through that once: what of the sought text has matched so far tells how much
// of it still does when the next code point does not fit.
class Search {
 public:
  Search(std::u32string_view text, std::u32string_view sought, std::size_t from)
      : text_(text), sought_(sought), next_(from), borders_(sought.size(), 0) {
    for (std::size_t i = 1, matched = 0; i < sought.size(); ++i) {
      matched = extended(matched, sought[i]);
      borders_[i] = matched;
    }
  }

  std::optional<std::int64_t> next() {
    if (sought_.empty()) return std::nullopt;
    std::size_t matched = 0;
    while (next_ < text_.size()) {
      matched = extended(matched, text_[next_++]);
      if (matched == sought_.size()) return static_cast<std::int64_t>(next_ - matched);
    }
    return std::nullopt;
  }

 private:
  // How much of the sought text has matched once `c` follows upon `matched` code points of it.
  [[nodiscard]] std::size_t extended(std::size_t matched, char32_t c) const {
    while (matched > 0 && sought_[matched] != c) matched = borders_[matched - 1];
    return sought_[matched] == c ? matched + 1 : 0;
  }

  std::u32string_view text_;
  std::u32string_view sought_;
  std::size_t next_;
  std::vector<std::size_t> borders_;  // the longest head of the sought text that also ends here
};

}  // namespace

std::u32string folded(std::string_view utf8) {
  const auto& letters = std::use_facet<std::ctype<wchar_t>>(letterRules());
  std::u32string result(utf8.size(), U'\0');  // as many as there can be
  auto next = result.begin();
  while (!utf8.empty()) {
    if (const auto byte = static_cast<unsigned char>(utf8.front()); byte < 0x80) {
      *next++ = lowerAscii(byte);
      utf8.remove_prefix(1);
    } else {
      *next++ = static_cast<char32_t>(letters.tolower(static_cast<wchar_t>(base::takeCodePoint(utf8))));
    }
  }
  result.erase(next, result.end());
  return result;
}

std::optional<std::int64_t> find(std::u32string_view foldedText, std::u32string_view foldedSought, std::int64_t from) {
  return Search(foldedText, foldedSought, static_cast<std::size_t>(std::max<std::int64_t>(from, 0))).next();
}

std::vector<std::int64_t> findAll(std::u32string_view foldedText, std::u32string_view foldedSought) {
  std::vector<std::int64_t> places;
  Search search(foldedText, foldedSought, 0);
  while (const std::optional<std::int64_t> place = search.next()) places.push_back(*place);
  return places;
}

}  // namespace editor
