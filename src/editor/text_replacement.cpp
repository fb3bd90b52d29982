// Replacing stretches of a formatted text.
#include "editor/text_replacement.h"

#include <utility>
#include <vector>

#include "base/text.h"

namespace editor {
namespace {

constexpr char32_t kBreak = 0x2028;

// Copies a paragraph from its start to its end, some of it replaced. Positions are code points of plain text.
class ParagraphCopy {
 public:
  ParagraphCopy(const base::Paragraph& source, std::int64_t position)
      : rest_(source.text), position_(position), run_(source.runs.begin()) {
    copy_.endFormat = source.endFormat;
    copy_.alignment = source.alignment;
  }

  void keepUntil(std::int64_t position) {
    while (!rest_.empty() && position_ < position) {
      const std::uint32_t format = run_->format;
      append(take(), format);
    }
  }
  void replace(std::int64_t length, std::string_view text) {
    const std::uint32_t format = run_->format;
    for (const std::int64_t end = position_ + length; !rest_.empty() && position_ < end;) take();
    append(text, format);
  }
  base::Paragraph finish(std::int64_t end) {
    keepUntil(end);
    return std::move(copy_);
  }

 private:
  // The next character off the source.
  std::string_view take() {
    std::string_view behind = rest_;
    const char32_t c = base::takeCodePoint(behind);
    const std::string_view character = rest_.substr(0, rest_.size() - behind.size());
    rest_ = behind;
    position_ += c == kBreak ? 2 : 1;
    inRun_ += static_cast<std::uint32_t>(character.size());
    if (inRun_ >= run_->size) ++run_, inRun_ = 0;
    return character;
  }
  void append(std::string_view text, std::uint32_t format) {
    if (text.empty()) return;
    if (copy_.runs.empty() || copy_.runs.back().format != format) copy_.runs.push_back({0, format});
    copy_.runs.back().size += static_cast<std::uint32_t>(text.size());
    copy_.text += text;
  }

  std::string_view rest_;
  std::int64_t position_;
  std::vector<base::Run>::const_iterator run_;
  std::uint32_t inRun_ = 0;
  base::Paragraph copy_;
};

base::Document withReplaced(const base::Document& document, std::span<const base::TextSelection> places,
                            std::string_view text) {
  base::Document result{.formats = document.formats, .paragraphs = {}};
  auto place = places.begin();
  std::int64_t start = 0;
  for (const base::Paragraph& paragraph : document.paragraphs) {
    const std::int64_t end = start + codePoints(base::countText(paragraph.text));
    ParagraphCopy copy(paragraph, start);
    for (; place != places.end() && place->start < end; ++place) {
      copy.keepUntil(place->start);
      copy.replace(place->length, text);
    }
    result.paragraphs.push_back(copy.finish(end));
    start = end + 2;
  }
  return result;
}

}  // namespace

void replaceEach(base::RichText& text, std::span<const base::TextSelection> places, std::string_view replacement) {
  if (places.empty()) return;
  const std::int64_t start = places.front().start;
  text.select({start, places.back().start + places.back().length - start});
  std::vector<base::TextSelection> within(places.begin(), places.end());
  for (base::TextSelection& place : within) place.start -= start;
  text.replaceSelection(withReplaced(text.selectedDocument(), within, replacement));
}

}  // namespace editor
