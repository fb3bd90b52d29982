// Sorting the lines of a text.
#include "editor/line_sorting.h"

#include <utility>

#include "base/text.h"

namespace editor {
namespace {

// Hands the lines to `take` one by one; false when `goesOn` has ended that.
template <typename Take>
bool eachLine(std::string_view text, const AtLineEnd& goesOn, Take take) {
  std::int64_t reached = 0;
  for (std::string_view rest = text;;) {
    const std::size_t end = rest.find(base::kLineBreak);
    const std::string_view line = rest.substr(0, end);
    take(line);
    if (end == std::string_view::npos) return true;
    reached += base::countText(line).characters + static_cast<std::int64_t>(base::kLineBreak.size());
    rest.remove_prefix(end + base::kLineBreak.size());
    if (!goesOn(reached)) return false;
  }
}

class ShellSort {
 public:
  ShellSort(Lines& lines, SortOrder order, SortProgress progress, const std::function<bool()>& goesOn)
      : lines_(lines), ascends_(order == SortOrder::ascending), progress_(progress), goesOn_(goesOn) {}

  bool run() {
    const int count = static_cast<int>(lines_.size());
    for (int gap = count / 2; gap >= 1; gap /= 2) {
      if (!goesOn_()) return false;
      for (int i = gap; i < count; ++i) {
        if (!insert(i - gap, gap)) return false;
        progress_.outer = i;
      }
    }
    return true;
  }

 private:
  // Moves the line behind `place` by `gap` to the front as far as its order demands.
  bool insert(int place, int gap) {
    for (int j = place; j >= 0; j -= gap) {
      if (++comparisons_ % kComparisonsAQuestion == 0 && !goesOn_()) return false;
      std::string& line = lines_[static_cast<std::size_t>(j)];
      std::string& later = lines_[static_cast<std::size_t>(j) + static_cast<std::size_t>(gap)];
      if (isInOrder(line, later)) return true;
      std::swap(line, later);
      progress_.inner = j + 1;
    }
    return true;
  }
  [[nodiscard]] bool isInOrder(const std::string& line, const std::string& later) const {
    return ascends_ ? line <= later : line >= later;
  }

  // Asking costs as much as some comparisons; that many take about 20 microseconds.
  static constexpr unsigned kComparisonsAQuestion = 256;

  Lines& lines_;
  bool ascends_;
  SortProgress progress_;
  const std::function<bool()>& goesOn_;
  unsigned comparisons_ = 0;
};

}  // namespace

std::optional<std::int32_t> countLines(std::string_view text, const AtLineEnd& goesOn) {
  std::int32_t count = 0;
  const bool hasEnded = eachLine(text, goesOn, [&count](std::string_view /*line*/) { ++count; });
  return hasEnded ? std::optional(count) : std::nullopt;
}

std::optional<Lines> splitLines(std::string_view text, std::int32_t count, const AtLineEnd& goesOn) {
  Lines lines;
  lines.reserve(static_cast<std::size_t>(count));
  const bool hasEnded = eachLine(text, goesOn, [&lines](std::string_view line) { lines.emplace_back(line); });
  return hasEnded ? std::optional(std::move(lines)) : std::nullopt;
}

bool shellSort(Lines& lines, SortOrder order, SortProgress progress, const std::function<bool()>& goesOn) {
  return ShellSort(lines, order, progress, goesOn).run();
}

base::Document documentOf(Lines lines, const base::CharFormat& format, const std::function<void(int)>& told) {
  base::Document result{.formats = {format}, .paragraphs = {}};
  result.paragraphs.reserve(lines.size());
  for (std::string& line : lines) {
    base::Paragraph paragraph;
    if (!line.empty()) paragraph.runs = {{.size = static_cast<std::uint32_t>(line.size()), .format = 0}};
    paragraph.text = std::move(line);
    result.paragraphs.push_back(std::move(paragraph));
    told(static_cast<int>(result.paragraphs.size()));
  }
  return result;
}

}  // namespace editor
