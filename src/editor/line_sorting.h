// Sorting the lines of a text: counting them, taking the text apart, the sort itself, putting them together again.
//
// Lines are compared byte by byte, which in UTF-8 is the order of code points: "Zebra" stands before "apfel".
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/document.h"

namespace editor {

using Lines = std::vector<std::string>;

/// Hears at each line end how many code points of plain text lie before the next line; false ends the work.
using AtLineEnd = std::function<bool(std::int64_t reached)>;

/// The lines of a plain text, of which there is one at least; nothing when the work was ended.
std::optional<std::int32_t> countLines(std::string_view text, const AtLineEnd& goesOn);
/// Takes a plain text of that many lines apart; nothing when the work was ended.
std::optional<Lines> splitLines(std::string_view text, std::int32_t count, const AtLineEnd& goesOn);

enum class SortOrder { ascending, descending };

/// Where a sort is, as figures of whoever shows them: lines count from 1.
struct SortProgress {
  int& outer;  // the line that was last put in its place
  int& inner;  // the line that was last exchanged with a later one
};

/// Sorts in place by exchanging lines, so that an unfinished sort has lost none. `goesOn` is asked as each pass begins
/// and often in between; its false ends the sort, which then returns false.
bool shellSort(Lines& lines, SortOrder order, SortProgress progress, const std::function<bool()>& goesOn);

/// A paragraph in `format` of each line; `told` hears of each.
base::Document documentOf(Lines lines, const base::CharFormat& format, const std::function<void(int)>& told);

}  // namespace editor
