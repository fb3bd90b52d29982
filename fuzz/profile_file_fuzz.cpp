// Fuzzes profile files: any bytes are read, changed in any way and read again.
//
// What must hold: unchanged bytes come out as they went in; a value that was set is read back; setting it touches one
// line at most; and what a file says of itself after changes is what a reader of its bytes sees.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/encoding.h"
#include "base/profile_file.h"
#include "base/profile_lines.h"
#include "base/text.h"

namespace {

using base::ProfileFile;

constexpr std::size_t kNoLimit = 1'000'000;

void require(bool holds) {
  if (!holds) std::abort();
}

// What is read back of a value, by the description of the format rather than by the code under test.
std::string asReadBack(std::string_view value) {
  std::string line;
  while (!value.empty()) {
    const char32_t character = base::takeCodePoint(value);
    base::appendCodePoint(line, character == U'\r' || character == U'\n' ? U' ' : character);
  }
  const std::string_view trimmed = base::withoutOuterBlanks(line);
  const bool quoted =
      trimmed.size() > 1 && trimmed.front() == trimmed.back() && (trimmed.front() == '"' || trimmed.front() == '\'');
  const std::string_view text = quoted ? trimmed.substr(1, trimmed.size() - 2) : trimmed;
  return std::string(text.substr(0, text.find('\0')));
}

bool isOrdinaryKey(std::string_view key) {
  while (!key.empty() && std::string_view(" \t\v\f\r\n").find(key.front()) != std::string_view::npos)
    key.remove_prefix(1);
  return !key.starts_with(';') && !key.starts_with('[') && key.find('=') == std::string_view::npos;
}

bool isUtf16(base::Encoding encoding) {
  return encoding == base::Encoding::utf16LittleEndian || encoding == base::Encoding::utf16BigEndian;
}

// Half a character of UTF-16 is the one thing that does not come out as it went in.
bool isWholeText(const std::string& bytes) {
  return !isUtf16(base::encodingOf(bytes)) || base::decoded(bytes).find("\uFFFD") == std::string::npos;
}

// One stretch of `after` stands for one of `before` that lies within a line.
void requireOneLineTouched(std::string_view before, std::string_view after) {
  const auto [first, firstAfter] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  before.remove_prefix(static_cast<std::size_t>(first - before.begin()));
  after.remove_prefix(static_cast<std::size_t>(firstAfter - after.begin()));
  const auto last = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend()).first;
  before.remove_suffix(static_cast<std::size_t>(last - before.rbegin()));
  require(before.find_first_of("\r\n") == std::string_view::npos);
}

class Session {
 public:
  explicit Session(FuzzedDataProvider& data) : data_(data), names_{"0", "1"} {
    for (int i = 0; i < 3; ++i) names_.push_back(data_.ConsumeRandomLengthString(8));
    operations_ = data_.ConsumeIntegralInRange(0, 10);
  }

  void run() {
    const std::vector<std::string> texts = {data_.ConsumeRandomLengthString(24), data_.ConsumeRandomLengthString(24)};
    const std::vector<int> operations = [&] {
      std::vector<int> list;
      for (int i = 0; i < operations_; ++i) list.push_back(data_.ConsumeIntegralInRange(0, 199));
      return list;
    }();
    const std::string bytes = data_.ConsumeRemainingBytesAsString();
    ProfileFile file = ProfileFile::parse(bytes);
    if (isWholeText(bytes)) require(file.bytes() == bytes);
    for (const int operation : operations) change(file, operation, texts);
  }

 private:
  // The bits of `operation` choose what is done and to which names.
  void change(ProfileFile& file, int operation, const std::vector<std::string>& texts) {
    const std::string& section = names_.at(static_cast<std::size_t>(operation / 4 % 5));
    const std::string& key = names_.at(static_cast<std::size_t>(operation / 20 % 5));
    if (operation % 4 == 0) file.deleteKey(section, key);
    if (operation % 4 == 1) file.deleteSection(section);
    if (operation % 4 == 2) file.setSection(section, texts);
    if (operation % 4 == 3) set(file, section, key, texts.at(static_cast<std::size_t>(operation / 100 % 2)));
    compareWithReader(file);
  }

  static void set(ProfileFile& file, const std::string& section, const std::string& key, const std::string& value) {
    const std::string before = file.bytes();
    file.setValue(section, key, value);
    if (isOrdinaryKey(key)) require(file.value(section, key, kNoLimit) == asReadBack(value));
    const std::string after = file.bytes();
    const base::Encoding encoding = base::encodingOf(before);
    if (encoding == base::encodingOf(after) && !isUtf16(encoding)) requireOneLineTouched(before, after);
  }

  void compareWithReader(const ProfileFile& file) const {
    const ProfileFile reader = ProfileFile::parse(file.bytes());
    require(reader.bytes() == file.bytes());
    for (const std::string& section : names_) {
      require(reader.sectionLines(section) == file.sectionLines(section));
      for (const std::string& key : names_) {
        require(reader.value(section, key, kNoLimit) == file.value(section, key, kNoLimit));
      }
    }
  }

  FuzzedDataProvider& data_;
  std::vector<std::string> names_;
  int operations_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedDataProvider data(bytes, size);
  Session(data).run();
  return 0;
}
