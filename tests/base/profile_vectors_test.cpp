// Profile files against rows recorded on the platform that the format comes from.
//
// The rows' files are code page 1252. Ours are compared as text, since a file that is new with us is UTF-8. The
// recorder rewrote files in normal form, so the file is compared only where it had that form before. It also took the
// blanks around the "=" out of a section's lines; ours stay.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/profile_file.h"
#include "base/text.h"
#include "support/json.h"

namespace {

using base::ProfileFile;
using support::Json;

std::string fromBase64(std::string_view text) {
  constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string bytes;
  std::uint32_t bits = 0;
  int count = 0;
  for (const char digit : text.substr(0, text.find('='))) {
    bits = (bits << 6U) | static_cast<std::uint32_t>(kDigits.find(digit));
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>((bits >> static_cast<unsigned>(count)) & 0xFFU);
  }
  return bytes;
}

std::string fileBytes(const Json& file) { return file.isNull() ? std::string() : fromBase64(file.text()); }

std::string asText(const std::string& bytes) {
  return base::isValidUtf8(bytes) ? bytes : base::fromCodePage1252(bytes);
}

bool isNormalForm(std::string_view file) {
  if (file.empty()) return true;
  if (!file.ends_with("\r\n")) return false;
  for (std::string_view rest = file; !rest.empty(); rest.remove_prefix(rest.find("\r\n") + 2)) {
    const std::string_view line = rest.substr(0, rest.find("\r\n"));
    if (line.empty() || line.find_first_of("\r\n") != std::string_view::npos) return false;
    if (std::string_view(" \t").find(line.front()) != std::string_view::npos || line.find(" =") < line.size())
      return false;
  }
  return true;
}

std::vector<std::string> texts(const Json& list) {
  std::vector<std::string> result;
  for (const Json& item : list.items()) result.push_back(item.text());
  return result;
}

std::string withoutBlanksAroundEquals(std::string line) {
  for (std::size_t at = line.find_first_of(" \t"); at < line.find('='); at = line.find_first_of(" \t", at + 1)) {
    const std::size_t end = line.find_first_not_of(" \t", at);
    if (end == line.find('=')) line.erase(at, end - at);
  }
  const std::size_t equals = line.find('=');
  if (equals != std::string::npos) line.erase(equals + 1, line.find_first_not_of(" \t", equals + 1) - equals - 1);
  return line;
}

void checkValue(const ProfileFile& file, const Json& op) {
  if (op["key"].isNull()) return;  // a list of keys, which we have no use for
  const auto size = static_cast<std::size_t>(op["size"].number());
  const std::string missing(base::firstCodePoints(op["default"].text(), size - 1));
  EXPECT_EQ(file.value(op["section"].text(), op["key"].text(), size).value_or(missing), op["result"]["value"].text());
}

void checkSection(const ProfileFile& file, const Json& op) {
  const auto size = static_cast<std::size_t>(op["size"].number());
  // The buffer, cut to what was read, is more exact than the lines: it also shows where the last one was cut.
  std::string expected = asText(fromBase64(op["result"]["buffer"].text()));
  expected.resize(static_cast<std::size_t>(op["result"]["ret"].number()));
  std::string read;
  for (const std::string& line : file.sectionLines(op["section"].text(), size)) {
    read += withoutBlanksAroundEquals(line) + '\0';
  }
  EXPECT_EQ(read.substr(0, expected.size()), expected);
  EXPECT_LE(read.size(), expected.size() + 1);
}

void run(ProfileFile& file, const Json& op) {
  const std::string& kind = op["op"].text();
  const std::string& section = op["section"].text();
  if (kind == "get") return checkValue(file, op);
  if (kind == "getsection") return checkSection(file, op);
  if (kind == "set") return file.setValue(section, op["key"].text(), op["value"].text());
  if (kind == "delkey") return file.deleteKey(section, op["key"].text());
  if (kind == "delsection") return file.deleteSection(section);
  if (kind == "setsection") return file.setSection(section, texts(op["lines"]));
  ADD_FAILURE() << "unknown operation " << kind;
}

TEST(ProfileFile, BehavesAsRecorded) {
  const Json vectors = Json::read(TESSIK_TEST_DATA "/profile-vectors.json");
  int comparedFiles = 0;
  for (const Json& vector : vectors.items()) {
    SCOPED_TRACE(vector["name"].text());
    const std::string before = fileBytes(vector["file_before"]);
    ProfileFile file = ProfileFile::parse(before);
    for (const Json& op : vector["ops"].items()) {
      SCOPED_TRACE(op["op"].text() + " " + op["section"].text());
      run(file, op);
      if (!isNormalForm(before) || !op.has("file")) continue;
      EXPECT_EQ(asText(file.bytes()), asText(fileBytes(op["file"])));
      ++comparedFiles;
    }
    if (!isNormalForm(before)) continue;
    EXPECT_EQ(asText(file.bytes()), asText(fileBytes(vector["file_after"])));
  }
  EXPECT_GT(comparedFiles, 10);
}

}  // namespace
