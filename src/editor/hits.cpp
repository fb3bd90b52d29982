// Where a sought text stands in a document.
#include "editor/hits.h"

#include <algorithm>
#include <utility>

#include "editor/text_search.h"

namespace editor {

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

std::vector<base::TextSelection> Hits::all() const {
  std::vector<base::TextSelection> hits;
  hits.reserve(places_.size());
  for (const std::int64_t place : places_) hits.push_back({.start = place, .length = length()});
  return hits;
}

}  // namespace editor
