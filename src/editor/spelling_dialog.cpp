// The spelling check of a text.
#include "editor/spelling_dialog.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "base/text.h"
#include "editor/text_replacement.h"
#include "editor/words.h"

namespace editor {
namespace {

constexpr std::int64_t kWholeText = std::numeric_limits<std::int64_t>::max();

base::TextSelection placeOf(const Word& word) {
  return {static_cast<std::int64_t>(word.start), static_cast<std::int64_t>(word.length)};
}

std::int64_t endOf(base::TextSelection selection) { return selection.start + selection.length; }

// Tells of a search that takes longer; Esc ends it.
class Search {
 public:
  explicit Search(const SpellingParts& parts) : parts_(parts) {}

  /// False when it is to end.
  bool goesOn() {
    constexpr int kNoticed = 2'000;  // words
    constexpr int kStride = 64;
    ++words_;
    if (words_ == kNoticed) waiting_.emplace(parts_.wait, parts_.platform, "Prüfe die Rechtschreibung ...", 0);
    return !waiting_ || words_ % kStride != 0 || !parts_.platform.escapePressed();
  }

 private:
  const SpellingParts& parts_;
  std::optional<frame::Waiting> waiting_;
  int words_ = 0;
};

// Come round, a check ends before the word that it began in.
bool isBeyond(const Word& word, const SpellingCheck& check) {
  const base::TextSelection place = placeOf(word);
  return check.isRound ? endOf(place) > check.limit : place.start >= check.limit;
}

// The next unknown word before the limit; nothing, and the state that says why, where there is none.
std::optional<Word> unknownWord(const SpellingParts& parts, std::u32string_view text) {
  SpellingCheck& check = parts.window.check;
  check.state = CheckState::hasEnded;
  Search search(parts);
  WordScanner words(text, static_cast<std::size_t>(check.position));
  while (auto word = words.next()) {
    if (isBeyond(*word, check)) break;
    if (!parts.spelling.knows(word->text)) return word;
    if (search.goesOn()) continue;
    check.state = CheckState::isCancelled;
    break;
  }
  return std::nullopt;
}

// As it stands in its line, between marks, with some of what is before and behind it.
std::string inItsLine(std::u32string_view text, const Word& word) {
  constexpr std::size_t kAround = 40;  // characters
  const std::u32string_view before = text.substr(0, word.start);
  const std::u32string_view behind = text.substr(word.end());
  const std::size_t lineStart = before.find_last_of(U"\r\n") + 1;  // npos + 1 is 0
  const std::size_t lineRest = std::min(behind.find_first_of(U"\r\n"), behind.size());
  const std::size_t start = std::max(lineStart, word.start - std::min(word.start, kAround));
  std::u32string line = start > lineStart ? U"…" : U"";
  line += before.substr(start);
  line += U"»";
  line += text.substr(word.start, word.length);
  line += U"«";
  line += behind.substr(0, std::min(lineRest, kAround));
  if (lineRest > kAround) line += U"…";
  std::replace(line.begin(), line.end(), U'\t', U' ');
  return base::toUtf8(line);
}

void showWord(const SpellingParts& parts, std::u32string_view text, const Word& word) {
  SpellingWindow& window = parts.window;
  window.lblStelle.text = inItsLine(text, word);
  std::vector<std::string> suggestions = parts.spelling.suggestions(word.text);
  window.txtErsetzen.text =
      suggestions.empty() ? base::toUtf8(text.substr(word.start, word.length)) : suggestions.front();
  window.lstVorschläge.items.assign(std::move(suggestions));
  window.lstVorschläge.current = window.lstVorschläge.items.empty() ? -1 : 0;
  window.lstVorschläge.enabled = !window.lstVorschläge.items.empty();
  window.txtErsetzen.wantsFocus = true;
  window.txtErsetzen.wantsSelectAll = true;
  offerReplacing(window);
}

void stopAt(const SpellingParts& parts, std::u32string_view text, const Word& word) {
  SpellingCheck& check = parts.window.check;
  check.state = CheckState::hasFound;
  check.found = placeOf(word);
  check.word = word.text;
  check.position = endOf(check.found);
  parts.text.select(check.found);
  showWord(parts, text, word);
}

// Every position moves with the places before it, each of which is `length` long now.
void follow(SpellingCheck& check, std::span<const base::TextSelection> places, std::int64_t length) {
  const auto moved = [&](std::int64_t position) {
    std::int64_t result = position;
    for (const base::TextSelection& place : places) {
      if (position != kWholeText && endOf(place) <= position) result += length - place.length;
    }
    return result;
  };
  const std::int64_t end = moved(endOf(check.before));
  check.before.start = moved(check.before.start);
  check.before.length = end - check.before.start;
  check.position = moved(check.position);
  check.limit = moved(check.limit);
}

void replaceAt(const SpellingParts& parts, std::span<const base::TextSelection> places) {
  if (places.empty()) return;
  std::int64_t around = codePoints(parts.text.countAll());
  for (const base::TextSelection& place : places) around -= place.length;
  replaceEach(parts.text, places, base::inOneLine(parts.window.txtErsetzen.text));
  const std::int64_t replaced = codePoints(parts.text.countAll()) - around;
  follow(parts.window.check, places, replaced / std::ssize(places));
}

std::vector<base::TextSelection> placesOfFound(const SpellingParts& parts) {
  const SpellingCheck& check = parts.window.check;
  const std::u32string text = base::toUtf32(parts.text.plainText());
  const std::int64_t limit = check.isRound || check.before.length == 0 ? kWholeText : check.limit;
  WordScanner words(text, static_cast<std::size_t>(check.before.length == 0 ? 0 : check.before.start));
  std::vector<base::TextSelection> places;
  while (const auto word = words.next()) {
    if (static_cast<std::int64_t>(word->start) >= limit) break;
    if (stemOf(word->text) == stemOf(check.word)) places.push_back(placeOf(*word));
  }
  return places;
}

}  // namespace

void beginCheck(const SpellingParts& parts) {
  const base::TextSelection selection = parts.text.selection();
  parts.window.check = {.before = selection,
                        .isRound = false,
                        .position = selection.start,
                        .limit = selection.length > 0 ? endOf(selection) : kWholeText,
                        .found = {},
                        .word = {},
                        .state = CheckState::hasFound};
}

void findUnknown(const SpellingParts& parts) {
  SpellingCheck& check = parts.window.check;
  const std::u32string text = base::toUtf32(parts.text.plainText());
  auto word = unknownWord(parts, text);
  if (check.state == CheckState::hasEnded && !word && !check.isRound && check.before.length == 0) {
    check.isRound = true;
    check.position = 0;
    check.limit = check.before.start;
    word = unknownWord(parts, text);
  }
  word ? stopAt(parts, text, *word) : parts.text.select(check.before);
}

void replaceFound(const SpellingParts& parts) { replaceAt(parts, std::span(&parts.window.check.found, 1)); }

void replaceAllFound(const SpellingParts& parts) { replaceAt(parts, placesOfFound(parts)); }

void takeSuggestion(SpellingWindow& window) {
  const base::ListBox& list = window.lstVorschläge;
  if (list.items.holds(list.current)) window.txtErsetzen.text = list.items[list.current];
  offerReplacing(window);
}

void offerReplacing(SpellingWindow& window) {
  window.cmdErsetzen.enabled = window.cmdAlleErsetzen.enabled = !window.txtErsetzen.text.empty();
}

}  // namespace editor
