// Whether a word is spelt as it should be.
#include "editor/spelling.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "editor/letters.h"
#include "editor/own_words.h"
#include "editor/words.h"

namespace editor {
namespace {

// Longer ones are no words; compounds take the dictionary a time that grows with their length.
constexpr std::size_t kLongestWord = 64;

constexpr std::size_t kMostAnswers = 100'000;

// What signs abbreviate and dictionaries leave out, with or without a period.
constexpr std::array<std::u32string_view, 20> kAbbreviations = {U"Mo",  U"Di",  U"Mi",  U"Do",   U"Fr",   U"Sa", U"So",
                                                                U"Str", U"Inh", U"Tel", U"Nr",   U"Hr",   U"Fa", U"OG",
                                                                U"EG",  U"UG",  U"OHG", U"MwSt", U"Mwst", U"Std"};

bool isAbbreviation(std::u32string_view word) {
  return std::find(kAbbreviations.begin(), kAbbreviations.end(), word) != kAbbreviations.end();
}

// `word` with each of its "ss" as ss or ß, as capitals leave it open.
std::vector<std::u32string> sharpened(const std::u32string& word) {
  constexpr std::size_t kMostVariants = 16;
  std::vector<std::u32string> variants = {word};
  for (std::size_t at = word.rfind(U"ss"); at != std::u32string::npos && at > 0; at = word.rfind(U"ss", at - 1)) {
    if (2 * variants.size() > kMostVariants) break;
    for (std::size_t i = 0, count = variants.size(); i < count; ++i) {
      variants.push_back(std::u32string(variants[i]).replace(at, 2, U"ß"));
    }
  }
  return variants;
}

// As what a word may stand in a dictionary.
std::vector<std::u32string> spellings(std::u32string_view word) {
  std::vector<std::u32string> result = {std::u32string(word)};
  if (lowered(word.front()) != word.front()) {
    result.emplace_back(word).front() = lowered(word.front());
  }
  if (!isInCapitals(word)) return result;
  for (std::u32string& small : sharpened(lowered(word))) {
    result.push_back(small);
    small.front() = word.front();
    result.push_back(std::move(small));
  }
  return result;
}

// "Hauptstr." as "Hauptstraße"; nothing for another word.
std::optional<std::u32string> wholeStreet(std::u32string_view text) {
  constexpr std::u32string_view kStreet = U"str.";
  if (text.size() <= kStreet.size() || lowered(text.substr(text.size() - kStreet.size())) != kStreet) return {};
  const bool isCapital = isInCapitals(stemOf(text));
  return std::u32string(stemOf(text)) + (isCapital ? U"ASSE" : U"aße");
}

// "geht's", "Andrea's".
std::u32string_view withoutShortened(std::u32string_view word) {
  const bool isShortened = word.size() > 3 && (word.ends_with(U"'s") || word.ends_with(U"'S"));
  return word.substr(0, word.size() - (isShortened ? 2 : 0));
}

}  // namespace

bool Spelling::isAvailable() {
  if (dictionary_ != nullptr) return true;
  dictionary_ = platform_.dictionary();
  if (dictionary_ != nullptr) {
    answers_.clear();
    tellChange();
  }
  return dictionary_ != nullptr;
}

std::optional<bool> Spelling::answered(const std::u32string& word) const {
  const auto answer = answers_.find(word);
  return answer == answers_.end() ? std::nullopt : std::optional(answer->second);
}

bool Spelling::knows(const std::u32string& word) {
  if (const auto answer = answered(word)) return *answer;
  if (answers_.size() >= kMostAnswers) answers_.clear();
  return answers_[word] = isSpeltRight(word);
}

std::vector<std::string> Spelling::suggestions(std::u32string_view word) {
  if (!isAvailable() || word.size() > kLongestWord) return {};
  return dictionary_->suggestions(base::toUtf8(stemOf(word)));
}

void Spelling::readOwnWords() {
  for (const std::u32string& word : editor::readOwnWords(ownWordsPath_)) enter(word);
  tellChange();
}

void Spelling::addOwnWord(std::u32string_view word) {
  ignore(word);
  appendOwnWord(ownWordsPath_, stemOf(word));
}

void Spelling::ignore(std::u32string_view word) {
  enter(stemOf(word));
  tellChange();
}

void Spelling::enter(std::u32string_view word) {
  ours_.emplace(word);
  oursWithoutCapitals_.insert(withoutCapitals(word));
}

// What was known stays so.
void Spelling::tellChange() {
  std::erase_if(answers_, [](const auto& answer) { return !answer.second; });
  if (changed_) changed_();
}

bool Spelling::isSpeltRight(std::u32string_view text) {
  const std::u32string_view word = stemOf(text);
  if (word.size() > kLongestWord) return isOurs(word);
  if (isWordOrCompound(word) || (text != word && isWord(text))) return true;
  const auto street = wholeStreet(text);
  return street && isWordOrCompound(*street);
}

bool Spelling::isWordOrCompound(std::u32string_view word) {
  if (isWord(word) || isWord(withoutShortened(word))) return true;
  if (word.find(U'-') == std::u32string_view::npos) return false;
  while (!word.empty()) {
    const std::u32string_view part = word.substr(0, word.find(U'-'));
    if (part.size() > 1 && !isWord(part)) return false;
    word.remove_prefix(std::min(part.size() + 1, word.size()));
  }
  return true;
}

bool Spelling::isWord(std::u32string_view word) {
  if (isOurs(word)) return true;
  const std::vector<std::u32string> asListed = spellings(word);
  return std::any_of(asListed.begin(), asListed.end(), [this](std::u32string_view each) { return isListed(each); });
}

bool Spelling::isListed(std::u32string_view word) {
  return ours_.contains(std::u32string(word)) || isAbbreviation(word) ||
         (dictionary_ != nullptr && dictionary_->knows(base::toUtf8(word)));
}

bool Spelling::isOurs(std::u32string_view word) const {
  return ours_.contains(std::u32string(word)) ||
         (isInCapitals(word) && oursWithoutCapitals_.contains(withoutCapitals(word)));
}

}  // namespace editor
