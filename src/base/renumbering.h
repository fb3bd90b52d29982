// Formats of one table numbered anew in another, in the order of their first use.
#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "base/document.h"

namespace base {

/// Fills an empty `target`.
class Renumbering {
 public:
  Renumbering(const std::vector<CharFormat>& formats, std::vector<CharFormat>& target)
      : formats_(formats), target_(target), numbers_(formats.size(), kNone) {}

  std::uint32_t operator()(std::uint32_t old) {
    std::uint32_t& number = numbers_[old];
    if (number == kNone) {
      number = static_cast<std::uint32_t>(target_.size());
      target_.push_back(formats_[old]);
    }
    return number;
  }

 private:
  static constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

  const std::vector<CharFormat>& formats_;
  std::vector<CharFormat>& target_;
  std::vector<std::uint32_t> numbers_;
};

}  // namespace base
