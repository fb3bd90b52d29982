// Where a sought text stands in a document, without regard to letter case.
//
// The text is read anew only when it has changed: stepping from hit to hit and another letter in the search box cost
// little in a long one.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/rich_text.h"

namespace editor {

class Hits {
 public:
  /// Brings itself up to date; an empty text is found nowhere.
  void look(const base::RichText& text, std::string_view sought);
  /// Gives back what it keeps.
  void forget() { *this = {}; }
  /// The text has changed since.
  [[nodiscard]] bool isBehind(const base::RichText& text) const { return revision_ != text.revision(); }

  [[nodiscard]] std::int64_t count() const { return static_cast<std::int64_t>(places_.size()); }
  /// The first hit at or behind `position`, and the last that ends at or before it.
  [[nodiscard]] std::optional<base::TextSelection> from(std::int64_t position) const;
  [[nodiscard]] std::optional<base::TextSelection> upTo(std::int64_t position) const;
  /// Which hit that is, from 1; nothing when it is none.
  [[nodiscard]] std::optional<std::int64_t> numberOf(base::TextSelection selection) const;
  [[nodiscard]] std::vector<base::TextSelection> all() const;

 private:
  [[nodiscard]] std::int64_t length() const { return static_cast<std::int64_t>(sought_.size()); }

  std::optional<std::uint64_t> revision_;
  std::u32string text_;
  std::u32string sought_;
  std::vector<std::int64_t> places_;
};

}  // namespace editor
