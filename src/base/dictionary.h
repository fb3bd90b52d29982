// A spelling dictionary as the logic sees it: which words of a language there are, and what else a word may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace base {

class Dictionary {
 public:
  virtual ~Dictionary() = default;

  /// Whether the word is spelt like that. Cheap, but not free: a long compound takes some 0.3 ms.
  [[nodiscard]] virtual bool knows(std::string_view word) = 0;
  /// The likeliest first. It may take a quarter of a second, so it is asked for the one word that is looked at.
  [[nodiscard]] virtual std::vector<std::string> suggestions(std::string_view word) = 0;
};

}  // namespace base
