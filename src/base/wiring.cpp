// Which event of which control runs which procedure.
#include "base/wiring.h"

#include "base/text.h"

namespace base {

bool Wiring::fireKey(EventSource source, char32_t key) const {
  const auto found = keys_.find(source.identity());
  return found != keys_.end() && found->second(key);
}

void Wiring::fireFile(const Window& window, const std::string& path) const {
  const auto found = files_.find(&window);
  if (found != files_.end()) found->second(path);
}

std::string Wiring::tipOf(const ListBox& list, int row) const {
  const auto found = rowTips_.find(&list);
  return found == rowTips_.end() ? std::string() : found->second(row);
}

Wiring::Filtered Wiring::filtered(const Control& box, std::string_view typed) const {
  const auto found = filters_.find(&box);
  if (found == filters_.end()) return {std::string(typed)};
  Filtered result;
  while (!typed.empty()) {
    if (const auto taken = found->second(takeCodePoint(typed))) {
      appendCodePoint(result.text, *taken);
    } else {
      result.refused = true;
    }
  }
  return result;
}

bool Wiring::fire(EventSource source, Event event) const {
  const auto found = procedures_.find({source.identity(), event});
  if (found == procedures_.end()) return false;
  found->second();
  return true;
}

}  // namespace base
