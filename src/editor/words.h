// The words of a text, as a spelling check sees them.
//
// A word is a run of Latin letters with the hyphens, apostrophes and soft hyphens in it. No words are: single letters,
// anything that holds a digit (house and phone numbers), e-mail and web addresses, names of files.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace editor {

struct Word {
  std::size_t start = 0;  // in the text, in code points
  std::size_t length = 0;
  /// As it is looked up: without soft hyphens, apostrophes and hyphens plain, and with the period or hyphen behind the
  /// word, which may belong to it ("Tel.", "Werbe- und Lichttechnik").
  std::u32string text;

  [[nodiscard]] std::size_t end() const { return start + length; }
};

/// `text` of a word without the period or hyphen behind it.
std::u32string_view stemOf(std::u32string_view text);

/// Whether a character parts what can be judged by itself from what is before and behind it: no word, number or address
/// goes on beyond it.
bool isGap(char32_t c);

/// Goes through the words of `text`, which must outlive it, from the first that ends behind `from`.
class WordScanner {
 public:
  explicit WordScanner(std::u32string_view text, std::size_t from = 0);

  [[nodiscard]] std::optional<Word> next();

 private:
  bool enterPiece();
  [[nodiscard]] std::optional<Word> wordBetween(std::size_t begin, std::size_t end) const;

  std::u32string_view text_;
  std::size_t from_;
  std::size_t at_;
  std::size_t pieceEnd_;
};

}  // namespace editor
