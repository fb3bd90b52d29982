// Profile (INI) files: reading, changing and replacing them whole, byte for byte where nothing is changed.
#include "base/profile_file.h"

#include <algorithm>
#include <utility>

#include "base/encoding.h"
#include "base/profile_sections.h"
#include "base/text.h"

namespace base {
namespace {

constexpr std::size_t kMostBytes = std::size_t{1} << 31U;  // a line and its name are counted in 32 bits

std::string_view withoutPairOfQuotes(std::string_view text) {
  const bool quoted = text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
  return quoted ? text.substr(1, text.size() - 2) : text;
}

std::string_view cutTo(std::size_t characters, std::string_view text) {
  return text.size() <= characters ? text : firstCodePoints(text, characters);
}

}  // namespace

struct ProfileFile::Content {
  explicit Content(std::string bytes)
      : encoding(encodingOf(bytes)), sections(std::in_place, decoded(std::move(bytes), encoding)) {}

  std::string_view asName(std::string_view text) { return withoutOuterBlanks(sections->asOneLine(text)); }
  // As in a header, the name ends at the first "]".
  std::string_view asSectionName(std::string_view text) { return asName(text.substr(0, text.find(']'))); }
  // A name is looked for as it is given first: it hardly ever holds what asOneLine() has to replace.
  ProfileSection* find(std::string_view section) {
    ProfileSection* const place = sections->find(withoutOuterBlanks(section));
    return place != nullptr ? place : sections->find(asSectionName(section));
  }
  ProfileSection& findOrAdd(std::string_view section) {
    ProfileSection* const place = find(section);
    return place != nullptr ? *place : sections->addSection(asSectionName(section));
  }
  ProfileLine* findEntry(std::string_view section, std::string_view key) {
    ProfileSection* const place = find(section);
    if (place == nullptr) return nullptr;
    ProfileLine* const entry = ProfileSections::findEntry(*place, withoutOuterBlanks(key));
    return entry != nullptr ? entry : ProfileSections::findEntry(*place, asName(key));
  }
  // A new text that is not the line it was meant to be makes other lines of the file something else too.
  void readAgain() { sections.emplace(sections->text()); }

  Encoding encoding;
  bool isChanged = false;
  std::optional<ProfileSections> sections;
};

ProfileFile::ProfileFile(std::unique_ptr<Content> content) : content_(std::move(content)) {}
ProfileFile::ProfileFile(ProfileFile&&) noexcept = default;
ProfileFile& ProfileFile::operator=(ProfileFile&&) noexcept = default;
ProfileFile::~ProfileFile() = default;

ProfileFile ProfileFile::load(const std::string& path) {
  std::string bytes = readFile(path).value_or(std::string());
  if (bytes.size() > kMostBytes) throw fileFailure(ErrorNumber::pathFileAccess, path);
  return parse(std::move(bytes));
}

ProfileFile ProfileFile::parse(std::string bytes) { return ProfileFile(std::make_unique<Content>(std::move(bytes))); }

std::optional<std::string> ProfileFile::value(std::string_view section, std::string_view key,
                                              std::size_t bufferSize) const {
  const ProfileLine* const entry = content_->findEntry(section, key);
  if (entry == nullptr || bufferSize == 0) return std::nullopt;
  const std::string_view text = cutTo(bufferSize - 1, withoutPairOfQuotes(valueOf(*entry)));
  return std::string(text.substr(0, text.find('\0')));
}

std::vector<std::string> ProfileFile::sectionLines(std::string_view section, std::size_t bufferSize) const {
  std::vector<std::string> result;
  const ProfileSection* const place = content_->find(section);
  if (place == nullptr) return result;
  std::size_t room = std::max<std::size_t>(bufferSize, 2) - 2;
  for (const ProfileLine& line : place->lines) {
    if (room == 0) break;
    if (!line.isData()) continue;
    result.emplace_back(cutTo(room, contentOf(line)));
    room -= std::min(room, codePointCount(result.back()) + 1);
  }
  return result;
}

void ProfileFile::setValue(std::string_view section, std::string_view key, std::string_view value) {
  ProfileSections& sections = *content_->sections;
  content_->isChanged = true;
  ProfileSection& place = content_->findOrAdd(section);
  const std::string_view name = content_->asName(key);
  if (ProfileLine* const entry = ProfileSections::findEntry(place, name)) {
    sections.changeValue(*entry, sections.asOneLine(value));
  } else if (!sections.addEntry(place, name, sections.asOneLine(value))) {
    content_->readAgain();
  }
}

void ProfileFile::deleteKey(std::string_view section, std::string_view key) {
  ProfileLine* const entry = content_->findEntry(section, key);
  if (entry == nullptr) return;
  *entry = ProfileLine();
  content_->isChanged = true;
}

void ProfileFile::deleteSection(std::string_view section) {
  ProfileSection* const place = content_->find(section);
  if (place == nullptr) return;
  *place = ProfileSection();
  content_->isChanged = true;
}

void ProfileFile::setSection(std::string_view section, std::span<const std::string> lines) {
  const auto end = std::find_if(lines.begin(), lines.end(), [](const std::string& line) { return line.empty(); });
  lines = lines.first(static_cast<std::size_t>(end - lines.begin()));
  if (lines.empty() && content_->find(section) == nullptr) return;
  content_->isChanged = true;
  if (!content_->sections->setLines(content_->findOrAdd(section), lines)) content_->readAgain();
}

std::string ProfileFile::bytes() const { return encoded(content_->sections->text(), content_->encoding); }

void ProfileFile::save(const std::string& path) {
  if (!content_->isChanged) return;
  replaceFile(path, bytes());
  content_->isChanged = false;
}

}  // namespace base
