// Names that match without regard to letter case, and an index that finds them in a list of lines or sections.
//
// Letters are those of ASCII and Latin-1, German umlauts among them. The index holds positions, not names: whoever asks
// compares, so a name that has gone from its position is simply no longer found there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace base {

bool sameButForCase(std::string_view a, std::string_view b);
inline bool sameName(std::string_view a, std::string_view b) { return a == b || sameButForCase(a, b); }
std::uint32_t nameHash(std::string_view name);

class NameIndex {
 public:
  /// Empties the index and makes room for `count` names.
  void reset(std::size_t count);

  /// Of several equal names the one added first is found first.
  void add(std::string_view name, std::uint32_t position);

  /// The position of `name` for which `isThere(position)` holds.
  template <typename Predicate>
  [[nodiscard]] std::optional<std::uint32_t> find(std::string_view name, Predicate&& isThere) const {
    if (slots_.empty()) return std::nullopt;
    const std::uint32_t hash = nameHash(name);
    for (std::size_t at = hash & mask(); slots_[at].position != kFree; at = (at + 1) & mask()) {
      if (slots_[at].hash == hash && isThere(slots_[at].position)) return slots_[at].position;
    }
    return std::nullopt;
  }

 private:
  static constexpr std::uint32_t kFree = 0xFFFFFFFF;

  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t position = kFree;
  };

  [[nodiscard]] std::size_t mask() const { return slots_.size() - 1; }
  void place(Slot slot);
  void grow();

  // A power of two of slots, at most half of them taken: a name stands in the slot of its hash or, where that is taken,
  // in the next free one.
  std::vector<Slot> slots_;
  std::size_t taken_ = 0;
};

}  // namespace base
