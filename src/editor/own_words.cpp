// The file of the user's own words.
#include "editor/own_words.h"

#include <algorithm>

#include "base/file_replacement.h"
#include "base/files.h"
#include "base/text.h"

namespace editor {
namespace {

constexpr std::size_t kLongestLine = 256;  // bytes; what is longer is no word

std::string_view trimmed(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t begin = line.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return line.substr(begin, line.find_last_not_of(kBlanks) - begin + 1);
}

}  // namespace

std::vector<std::u32string> readOwnWords(const std::string& path) {
  const std::string bytes = base::readFile(path).value_or("");
  std::string_view rest = bytes;
  if (rest.starts_with(base::kUtf8Mark)) rest.remove_prefix(base::kUtf8Mark.size());
  std::vector<std::u32string> words;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = trimmed(rest.substr(0, end));
    if (!line.empty() && line.size() <= kLongestLine && base::isValidUtf8(line)) words.push_back(base::toUtf32(line));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return words;
}

// Read again, for another program may have added to it.
void appendOwnWord(const std::string& path, std::u32string_view word) {
  std::string bytes = base::readFile(path).value_or("");
  if (!bytes.empty() && bytes.back() != '\n') bytes += '\n';
  base::replaceFile(path, bytes + base::toUtf8(word) + '\n');
}

}  // namespace editor
