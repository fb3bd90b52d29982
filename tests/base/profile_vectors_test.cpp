// Profile files against rows recorded on the platform that the format comes from.
//
// The rows' files are code page 1252. Ours are compared as text, since a file that is new with us is UTF-8. The
// recorder rewrote files in normal form, so the file is compared only where it had that form before. It also took the
// blanks around the "=" out of a section's lines; ours stay.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/profile_file.h"
#include "base/text.h"

namespace {

using base::ProfileFile;

std::string textOf(const QJsonValue& value) { return value.toString().toStdString(); }

std::string fromBase64(const QJsonValue& value) {
  return QByteArray::fromBase64(value.toString().toLatin1()).toStdString();
}

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

std::vector<std::string> texts(const QJsonValue& list) {
  std::vector<std::string> result;
  for (const QJsonValue item : list.toArray()) result.push_back(textOf(item));
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

void checkValue(const ProfileFile& file, const QJsonObject& op) {
  if (op["key"].isNull()) return;  // a list of keys, which we have no use for
  const auto size = static_cast<std::size_t>(op["size"].toInt());
  const std::string unset = textOf(op["default"]);
  const std::string missing(base::firstCodePoints(unset, size - 1));
  EXPECT_EQ(file.value(textOf(op["section"]), textOf(op["key"]), size).value_or(missing),
            textOf(op["result"]["value"]));
}

void checkSection(const ProfileFile& file, const QJsonObject& op) {
  const auto size = static_cast<std::size_t>(op["size"].toInt());
  // The buffer, cut to what was read, is more exact than the lines: it also shows where the last one was cut.
  std::string expected = asText(fromBase64(op["result"]["buffer"]));
  expected.resize(static_cast<std::size_t>(op["result"]["ret"].toInt()));
  std::string read;
  for (const std::string& line : file.sectionLines(textOf(op["section"]), size)) {
    read += withoutBlanksAroundEquals(line) + '\0';
  }
  EXPECT_EQ(read.substr(0, expected.size()), expected);
  EXPECT_LE(read.size(), expected.size() + 1);
}

void run(ProfileFile& file, const QJsonObject& op) {
  const std::string kind = textOf(op["op"]);
  const std::string section = textOf(op["section"]);
  if (kind == "get") return checkValue(file, op);
  if (kind == "getsection") return checkSection(file, op);
  if (kind == "set") return file.setValue(section, textOf(op["key"]), textOf(op["value"]));
  if (kind == "delkey") return file.deleteKey(section, textOf(op["key"]));
  if (kind == "delsection") return file.deleteSection(section);
  if (kind == "setsection") return file.setSection(section, texts(op["lines"]));
  ADD_FAILURE() << "unknown operation " << kind;
}

TEST(ProfileFile, BehavesAsRecorded) {
  QFile recorded(QStringLiteral(TESSIK_TEST_DATA "/profile-vectors.json"));
  ASSERT_TRUE(recorded.open(QIODevice::ReadOnly));
  int comparedFiles = 0;
  for (const QJsonValue vector : QJsonDocument::fromJson(recorded.readAll()).array()) {
    SCOPED_TRACE(textOf(vector["name"]));
    const std::string before = fromBase64(vector["file_before"]);
    ProfileFile file = ProfileFile::parse(before);
    for (const QJsonValue op : vector["ops"].toArray()) {
      SCOPED_TRACE(textOf(op["op"]) + " " + textOf(op["section"]));
      run(file, op.toObject());
      if (!isNormalForm(before) || !op.toObject().contains(QStringLiteral("file"))) continue;
      EXPECT_EQ(asText(file.bytes()), asText(fromBase64(op["file"])));
      ++comparedFiles;
    }
    if (!isNormalForm(before)) continue;
    EXPECT_EQ(asText(file.bytes()), asText(fromBase64(vector["file_after"])));
  }
  EXPECT_GT(comparedFiles, 10);
}

}  // namespace
