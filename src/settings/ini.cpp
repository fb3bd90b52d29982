// The operations on settings files that the rest of the program uses: one value, one array, one section.
#include "settings/ini.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/profile_lines.h"

namespace settings {

using base::ProfileFile;

void INISetValue(const std::string& file, std::string_view section, std::string_view key, std::string_view value) {
  base::tagged(kSetValueTag, [&] {
    ProfileFile profile = ProfileFile::load(file);
    profile.setValue(section, key, value);
    profile.save(file);
  });
}

std::string INIGetValue(const std::string& file, std::string_view section, std::string_view key) {
  return base::tagged(kGetValueTag, [&] {
    return ProfileFile::load(file).value(section, key, base::kSettingBuffer).value_or(std::string());
  });
}

void INISetArray(const std::string& file, std::string_view section, std::span<const std::string> array) {
  base::tagged(kSetArrayTag, [&] {
    ProfileFile profile = ProfileFile::load(file);
    replaceArray(profile, section, array);
    profile.save(file);
  });
}

void replaceArray(ProfileFile& file, std::string_view section, std::span<const std::string> array) {
  file.deleteSection(section);
  file.setSection(section, array);
}

bool comesBack(std::span<const std::string> array) {
  constexpr std::string_view kSection = "Liste";
  ProfileFile written = ProfileFile::parse("");
  replaceArray(written, kSection, array);
  const std::vector<std::string> read = ProfileFile::parse(written.bytes()).sectionLines(kSection);
  const auto end = std::find(array.begin(), array.end(), std::string());
  return std::equal(array.begin(), end, read.begin(), read.end(), [](const std::string& text, const std::string& line) {
    return base::withoutOuterBlanks(text) == line;
  });
}

void INIGetArray(const std::string& file, std::string_view section, std::span<std::string> array) {
  try {
    std::vector<std::string> lines = ProfileFile::load(file).sectionLines(section);
    lines.resize(std::min(lines.size(), array.size()));
    std::move(lines.begin(), lines.end(), array.begin());
  } catch (const base::Failure&) {
    return;
  }
}

void INIDeleteSection(const std::string& file, std::string_view section) {
  ProfileFile profile = ProfileFile::load(file);
  profile.deleteSection(section);
  profile.save(file);
}

}  // namespace settings
