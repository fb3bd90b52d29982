// The removal of blank lines.
#include "editor/blank_lines.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace editor {
namespace {

bool isBlank(std::string_view line) { return line.find_first_not_of(" \t") == std::string_view::npos; }

base::Paragraph emptied(const base::Paragraph& paragraph) {
  return {.text = {},
          .runs = {},
          .endFormat = paragraph.runs.empty() ? paragraph.endFormat : paragraph.runs.front().format,
          .alignment = paragraph.alignment};
}

// Stretches of a paragraph with their formats, taken one behind the other in time linear in its length.
class Extract {
 public:
  explicit Extract(const base::Paragraph& source)
      : source_(source),
        result_{.text = {}, .runs = {}, .endFormat = source.endFormat, .alignment = source.alignment} {}

  void append(std::size_t begin, std::size_t end) {
    result_.text.append(source_.text, begin, end - begin);
    while (begin < end) {
      while (runEnd_ <= begin) runEnd_ += source_.runs[runs_++].size;
      const std::size_t stop = std::min(end, runEnd_);
      result_.runs.push_back(
          {.size = static_cast<std::uint32_t>(stop - begin), .format = source_.runs[runs_ - 1].format});
      begin = stop;
    }
  }
  [[nodiscard]] bool isEmpty() const { return result_.text.empty(); }
  [[nodiscard]] base::Paragraph taken() && { return std::move(result_); }

 private:
  const base::Paragraph& source_;
  base::Paragraph result_;
  std::size_t runs_ = 0;  // that have been reached
  std::size_t runEnd_ = 0;
};

// Without text when no line is left. A line takes the break before it along.
base::Paragraph withoutBlankLines(const base::Paragraph& paragraph) {
  constexpr std::size_t kBreak = base::kLineSeparator.size();
  Extract rest(paragraph);
  const std::string_view text = paragraph.text;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(base::kLineSeparator, begin), text.size());
    if (!isBlank(text.substr(begin, end - begin))) rest.append(rest.isEmpty() ? begin : begin - kBreak, end);
    begin = end + kBreak;
  }
  return std::move(rest).taken();
}

}  // namespace

bool removeBlankLines(base::Document& document, const std::function<void(int)>& told) {
  std::vector<base::Paragraph> kept;
  const base::Paragraph lastResort = emptied(document.paragraphs.front());
  const std::size_t count = document.paragraphs.size();
  bool isShorter = false;
  int reached = 0;
  for (base::Paragraph& paragraph : document.paragraphs) {
    const std::size_t size = paragraph.text.size();
    if (paragraph.text.find(base::kLineSeparator) != std::string::npos) paragraph = withoutBlankLines(paragraph);
    if (!isBlank(paragraph.text)) {
      isShorter = isShorter || paragraph.text.size() < size;
      kept.push_back(std::move(paragraph));
    } else {
      isShorter = isShorter || size > 0;
    }
    told(++reached);
  }
  if (kept.empty()) kept.push_back(lastResort);
  document.paragraphs = std::move(kept);
  return isShorter || document.paragraphs.size() < count;
}

}  // namespace editor
