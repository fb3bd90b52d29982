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
    for (std::uint32_t at = slots_[slotOf(nameHash(name))].first; at != kNone; at = entries_[at].next) {
      if (isThere(entries_[at].position)) return entries_[at].position;
    }
    return std::nullopt;
  }

 private:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  struct Entry {
    std::uint32_t position = 0;
    std::uint32_t next = kNone;  // of the same hash, in the order of adding
  };
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t first = kNone;
    std::uint32_t last = kNone;
  };

  [[nodiscard]] std::size_t slotOf(std::uint32_t hash) const;
  void grow();

  std::vector<Entry> entries_;
  // A power of two of slots, at most half of them taken. A hash has one slot however often its name is there: the one
  // of its own number or, where that is taken by another hash, the next free one.
  std::vector<Slot> slots_;
  std::size_t taken_ = 0;
};

}  // namespace base
