// Names that match without regard to letter case, and an index that finds them in a list of lines or sections.
#include "base/name_index.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace base {
namespace {

// The letters from À to Þ are C3 80 to C3 9E in UTF-8; the × among them has no small form.
constexpr unsigned char kLatin1Lead = 0xC3;

// The bytes of a name one by one, as they are in small letters.
class SmallLetters {
 public:
  unsigned char operator()(char next) {
    const auto byte = static_cast<unsigned char>(next);
    const bool afterLead = previous_ == kLatin1Lead;
    previous_ = byte;
    if (byte >= 'A' && byte <= 'Z') return byte | 0x20U;
    if (afterLead && byte >= 0x80 && byte <= 0x9E && byte != 0x97) return byte | 0x20U;
    return byte;
  }

 private:
  unsigned char previous_ = 0;
};

// Up to eight bytes of a name as a number. In small and in capital letters it is the same: they differ in one bit only,
// in Latin-1 too, and what else differs in that bit alone meets the same number without harm.
template <typename Word>
std::uint64_t wordAt(const char* bytes) {
  constexpr std::uint64_t kSmallLetterBits = 0x2020202020202020U;
  Word word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word | kSmallLetterBits;
}

std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
  hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
  return hash ^ (hash >> 32U);
}

}  // namespace

bool sameButForCase(std::string_view a, std::string_view b) {
  SmallLetters smallA;
  SmallLetters smallB;
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [&](char x, char y) { return smallA(x) == smallB(y); });
}

std::uint32_t nameHash(std::string_view name) {
  if (name.empty()) return 0;
  // The last byte is added as it is, so that names which count up have neighbouring slots and share a line of the
  // cache.
  const std::uint64_t last = wordAt<std::uint8_t>(&name.back());
  name.remove_suffix(1);
  std::uint64_t hash = name.size();
  for (; name.size() >= 8; name.remove_prefix(8)) hash = mixed(hash, wordAt<std::uint64_t>(name.data()));
  if (name.size() >= 4) {
    hash = mixed(hash, wordAt<std::uint32_t>(name.data()));
    name.remove_prefix(4);
  }
  for (const char byte : name) hash = mixed(hash, wordAt<std::uint8_t>(&byte));
  return static_cast<std::uint32_t>(hash + last);
}

void NameIndex::reset(std::size_t count) {
  std::size_t size = 16;
  while (size < 2 * count) size *= 2;
  slots_.assign(size, {});
  taken_ = 0;
  entries_.clear();
  entries_.reserve(count);
}

void NameIndex::add(std::string_view name, std::uint32_t position) {
  if (2 * taken_ >= slots_.size()) grow();
  const std::uint32_t hash = nameHash(name);
  const auto added = static_cast<std::uint32_t>(entries_.size());
  entries_.push_back({position});
  Slot& slot = slots_[slotOf(hash)];
  if (slot.first == kNone) {
    slot = {hash, added, added};
    ++taken_;
  } else {
    entries_[slot.last].next = added;
    slot.last = added;
  }
}

// The slot that the hash has or would get.
std::size_t NameIndex::slotOf(std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].first != kNone && slots_[at].hash != hash) at = (at + 1) & mask;
  return at;
}

void NameIndex::grow() {
  const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(std::max<std::size_t>(16, 2 * slots_.size())));
  for (const Slot& slot : old) {
    if (slot.first != kNone) slots_[slotOf(slot.hash)] = slot;
  }
}

}  // namespace base
