// Which event of which control runs which procedure.
#include "base/wiring.h"

#include "base/text.h"

namespace base {

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
