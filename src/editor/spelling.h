// Whether a word is spelt as it should be: by the dictionary, by the user's own words, and by what signs are written
// in.
//
// Capitals are no fault: "BÄCKEREI" is known as "Bäckerei" is, "STRASSE" as "Straße". A compound with hyphens is known
// as a whole or by its parts, a street ("Hauptstr.") by its whole name. Umlauts are never spelt out.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "base/platform.h"

namespace editor {

class Spelling {
 public:
  /// `platform` outlives it.
  Spelling(base::Platform& platform, std::string ownWordsPath)
      : platform_(platform), ownWordsPath_(std::move(ownWordsPath)) {}

  /// Whether there is a dictionary; as long as there is none it is looked for again.
  [[nodiscard]] bool isAvailable();

  /// Of the text of a Word; without a dictionary only what the user has said is known.
  [[nodiscard]] bool knows(const std::u32string& word);
  /// What knows() would say, if it need not be looked up.
  [[nodiscard]] std::optional<bool> answered(const std::u32string& word) const;
  /// What else the word may be; none without a dictionary.
  [[nodiscard]] std::vector<std::string> suggestions(std::u32string_view word);

  /// Takes over the file of own words. One that cannot be read is a Failure.
  void readOwnWords();
  /// Makes the word known from now on, also when the file cannot be written, which is a Failure.
  void addOwnWord(std::u32string_view word);
  /// Makes the word known as long as the program runs.
  void ignore(std::u32string_view word);

  /// Runs whenever words have become known, or a dictionary.
  void whenChanged(std::function<void()> procedure) { changed_ = std::move(procedure); }

 private:
  void enter(std::u32string_view word);
  void tellChange();
  [[nodiscard]] bool isSpeltRight(std::u32string_view text);
  [[nodiscard]] bool isWordOrCompound(std::u32string_view word);
  [[nodiscard]] bool isWord(std::u32string_view word);
  [[nodiscard]] bool isListed(std::u32string_view word);
  [[nodiscard]] bool isOurs(std::u32string_view word) const;

  base::Platform& platform_;
  std::string ownWordsPath_;
  base::Dictionary* dictionary_ = nullptr;
  std::unordered_set<std::u32string> ours_;
  std::unordered_set<std::u32string> oursWithoutCapitals_;
  std::unordered_map<std::u32string, bool> answers_;
  std::function<void()> changed_;
};

}  // namespace editor
