// The sections of a profile file in memory: finding sections and keys in them, changing them, and all of it as text.
//
// Text is UTF-8 without a mark. Adding writes what it is given, which need not read back as meant (a key with "=" in
// it); it then says so, and the caller reads the text again.
#pragma once

#include <cstdint>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/name_index.h"
#include "base/profile_lines.h"

namespace base {

/// What is deleted stays in its place as a line of no bytes, so that positions in an index stay what they are.
struct ProfileSection {
  ProfileLine header;  // of no bytes also for the lines before the first header
  std::vector<ProfileLine> lines;
  // The keys of long sections count up from 0 and need no index: as far as they have been looked at, the key "7" stands
  // in lines[7], or was there until it was deleted.
  std::size_t counted = 0;
  NameIndex keys;
  bool indexed = false;
};

class ProfileSections {
 public:
  explicit ProfileSections(std::string text);
  ProfileSections(const ProfileSections&) = delete;
  ProfileSections& operator=(const ProfileSections&) = delete;
  ~ProfileSections() = default;

  /// The first section of that name, or null.
  ProfileSection* find(std::string_view name);
  /// The first entry of that name, or null.
  static ProfileLine* findEntry(ProfileSection& section, std::string_view key);

  ProfileSection& addSection(std::string_view name);
  /// True when the entry reads back as one of that name.
  [[nodiscard]] bool addEntry(ProfileSection& section, std::string_view key, std::string_view value);
  void changeValue(ProfileLine& entry, std::string_view value);
  /// Replaces all lines of the section; true when each of them reads back as a line of this section.
  [[nodiscard]] bool setLines(ProfileSection& section, std::span<const std::string> lines);

  /// `text` without line ends, which would cut the file apart, and without ill-formed bytes, which would make all of
  /// the file code page 1252 for the next reader.
  std::string_view asOneLine(std::string_view text);

  [[nodiscard]] std::string text() const;

 private:
  ProfileLine* lastLine();
  void supplyLineEnd(ProfileLine& line);

  std::string source_;
  TextStore added_;
  std::vector<ProfileSection> sections_;
  NameIndex names_;
  std::uint32_t lastFound_ = 0;  // most calls ask for the section of the call before
  std::string_view lineEnd_;
  bool lacksLineEnd_;  // the last line as it was read
};

}  // namespace base
