// Where a sought text stands in a document.
#include "editor/hits.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/text.h"
#include "editor/text_search.h"

namespace editor {
namespace {

// Writes a paragraph anew, going through the old one; lengths are code points.
class Rewriting {
 public:
  explicit Rewriting(const base::Paragraph& old) : old_(old), rest_(old.text), run_(old.runs.begin()) {
    if (run_ != old.runs.end()) leftOfRun_ = run_->size;
  }

  void keep(std::size_t length) {
    pass(length, [this](std::string_view part) { append(part); });
  }
  void replace(std::size_t length, std::string_view with) {
    append(with);
    pass(length, [](std::string_view /*part*/) {});
  }
  base::Paragraph finish() {
    keep(std::numeric_limits<std::size_t>::max());
    return {std::move(text_), std::move(runs_), old_.endFormat, old_.alignment};
  }

 private:
  // Hands over what lies within one run at a time.
  template <typename Take>
  void pass(std::size_t length, Take take) {
    for (std::size_t bytes = base::firstCodePoints(rest_, length).size(); bytes > 0;) {
      const std::size_t part = std::min(bytes, leftOfRun_);
      take(rest_.substr(0, part));
      rest_.remove_prefix(part);
      bytes -= part;
      leftOfRun_ -= part;
      if (leftOfRun_ == 0 && ++run_ != old_.runs.end()) leftOfRun_ = run_->size;
    }
  }

  void append(std::string_view part) {
    if (part.empty()) return;
    if (runs_.empty() || runs_.back().format != run_->format) runs_.push_back({.size = 0, .format = run_->format});
    runs_.back().size += static_cast<std::uint32_t>(part.size());
    text_ += part;
  }

  const base::Paragraph& old_;
  std::string_view rest_;
  std::vector<base::Run>::const_iterator run_;
  std::size_t leftOfRun_ = 0;  // bytes
  std::string text_;
  std::vector<base::Run> runs_;
};

}  // namespace

void Hits::look(const base::RichText& text, std::string_view sought) {
  std::u32string letters = folded(sought);
  const bool isNewText = isBehind(text);
  if (!isNewText && letters == sought_) return;
  sought_ = std::move(letters);
  if (isNewText) text_ = folded(text.plainText());
  revision_ = text.revision();
  places_ = findAll(text_, sought_);
}

std::optional<base::TextSelection> Hits::from(std::int64_t position) const {
  const auto place = std::lower_bound(places_.begin(), places_.end(), position);
  if (place == places_.end()) return std::nullopt;
  return base::TextSelection{.start = *place, .length = length()};
}

std::optional<base::TextSelection> Hits::upTo(std::int64_t position) const {
  const auto behind = std::upper_bound(places_.begin(), places_.end(), position - length());
  if (behind == places_.begin()) return std::nullopt;
  return base::TextSelection{.start = *std::prev(behind), .length = length()};
}

std::optional<std::int64_t> Hits::numberOf(base::TextSelection selection) const {
  const auto place = std::lower_bound(places_.begin(), places_.end(), selection.start);
  if (place == places_.end() || selection != base::TextSelection{*place, length()}) return std::nullopt;
  return place - places_.begin() + 1;
}

base::TextSelection Hits::span() const {
  return {.start = places_.front(), .length = places_.back() + length() - places_.front()};
}

base::Document replacedIn(base::Document document, std::string_view sought, std::string_view replacement) {
  const std::u32string letters = folded(sought);
  for (base::Paragraph& paragraph : document.paragraphs) {
    const std::vector<std::int64_t> places = findAll(folded(paragraph.text), letters);
    if (places.empty()) continue;
    Rewriting rewriting(paragraph);
    std::size_t passed = 0;
    for (const std::int64_t place : places) {
      rewriting.keep(static_cast<std::size_t>(place) - passed);
      rewriting.replace(letters.size(), replacement);
      passed = static_cast<std::size_t>(place) + letters.size();
    }
    paragraph = rewriting.finish();
  }
  return document;
}

}  // namespace editor
