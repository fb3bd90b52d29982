// Searching a text without regard to letter case.
//
// One code point is compared with one, so places and lengths are those of the text itself: ä equals Ä, but ß is not SS.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace editor {

/// The code points of `utf8`, each in lower case where it has one: texts that differ in letter case alone are equal.
std::u32string folded(std::string_view utf8);

/// Where `foldedSought` begins for the first time at or behind `from`. An empty text is found nowhere. Linear in the
/// length of the text, whatever is sought.
std::optional<std::int64_t> find(std::u32string_view foldedText, std::u32string_view foldedSought, std::int64_t from);

/// All the places of it, from the front; none reaches into the one before.
std::vector<std::int64_t> findAll(std::u32string_view foldedText, std::u32string_view foldedSought);

}  // namespace editor
