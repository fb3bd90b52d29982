// A sequence of values of which neighbours are mostly equal, kept as stretches.
//
// Finding a place costs time linear in the number of stretches.
#pragma once

#include <cstddef>
#include <vector>

namespace base {

template <typename Value>
class Stretches {
 public:
  struct Stretch {
    std::size_t length;
    Value value;
  };
  using const_iterator = typename std::vector<Stretch>::const_iterator;

  [[nodiscard]] const_iterator begin() const { return stretches_.begin(); }
  [[nodiscard]] const_iterator end() const { return stretches_.end(); }

  void append(std::size_t length, Value value) {
    if (length == 0) return;
    if (!stretches_.empty() && stretches_.back().value == value) {
      stretches_.back().length += length;
    } else {
      stretches_.push_back({length, value});
    }
  }

  /// The value at `index`, which must be within.
  [[nodiscard]] Value at(std::size_t index) const {
    auto stretch = begin();
    for (; index >= stretch->length; ++stretch) index -= stretch->length;
    return stretch->value;
  }

  [[nodiscard]] Stretches slice(std::size_t from, std::size_t to) const {
    Stretches result;
    for (auto stretch = begin(); stretch != end() && to > 0; ++stretch) {
      const std::size_t last = to < stretch->length ? to : stretch->length;
      if (from < last) result.append(last - from, stretch->value);
      from -= from < stretch->length ? from : stretch->length;
      to -= last;
    }
    return result;
  }

  /// Puts `piece` in the place of what lies between `from` and `to`.
  void replace(std::size_t from, std::size_t to, const Stretches& piece) {
    const std::size_t first = cut(from);
    const std::size_t last = cut(to);
    const auto at = [this](std::size_t i) { return stretches_.begin() + static_cast<std::ptrdiff_t>(i); };
    stretches_.insert(stretches_.erase(at(first), at(last)), piece.begin(), piece.end());
    join(first + piece.stretches_.size());
    join(first);
  }

 private:
  // The number of the stretch that begins at `index`, for which one is cut in two where necessary.
  std::size_t cut(std::size_t index) {
    std::size_t i = 0;
    for (; i < stretches_.size() && index >= stretches_[i].length; ++i) index -= stretches_[i].length;
    if (index == 0) return i;
    const Stretch head{index, stretches_[i].value};
    stretches_[i].length -= index;
    stretches_.insert(stretches_.begin() + static_cast<std::ptrdiff_t>(i), head);
    return i + 1;
  }

  // Makes one of the stretch `i` and the one before it if they are equal.
  void join(std::size_t i) {
    if (i == 0 || i >= stretches_.size() || stretches_[i - 1].value != stretches_[i].value) return;
    stretches_[i - 1].length += stretches_[i].length;
    stretches_.erase(stretches_.begin() + static_cast<std::ptrdiff_t>(i));
  }

  std::vector<Stretch> stretches_;
};

}  // namespace base
