// The sections of a profile file in memory: finding sections and keys in them, changing them, and all of it as text.
#include "base/profile_sections.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "base/text.h"

namespace base {
namespace {

void indexKeys(ProfileSection& section) {
  section.keys.reset(section.lines.size());
  std::uint32_t at = 0;
  for (const ProfileLine& line : section.lines) {
    if (line.kind() == LineKind::entry) section.keys.add(line.name(), at);
    ++at;
  }
  section.indexed = true;
}

// The number that a name is, written without leading zeros.
std::optional<std::size_t> numberOf(std::string_view name) {
  constexpr std::size_t kMostDigits = 9;
  const bool leadingZero = name.size() > 1 && name.front() == '0';
  if (name.empty() || name.size() > kMostDigits || leadingZero) return std::nullopt;
  std::size_t number = 0;
  for (const char byte : name) {
    if (byte < '0' || byte > '9') return std::nullopt;
    number = 10 * number + static_cast<std::size_t>(byte - '0');
  }
  return number;
}

bool isEntryOf(const ProfileLine& line, std::string_view key) {
  return line.kind() == LineKind::entry && sameName(line.name(), key);
}

void countOn(ProfileSection& section) {
  while (section.counted < section.lines.size()) {
    const ProfileLine& next = section.lines[section.counted];
    if (next.kind() != LineKind::entry || numberOf(next.name()) != section.counted) return;
    ++section.counted;
  }
}

// False for a name that a reader would take for something else; such a line is rare and looked at as a reader does.
bool readsBackAsKey(std::string_view name) {
  return !name.starts_with(';') && !name.starts_with('[') && name.find('=') == std::string_view::npos;
}

// Where a new key belongs: behind the last line that is neither blank nor comment.
auto endOfData(std::vector<ProfileLine>& lines) {
  auto end = lines.end();
  while (end != lines.begin() && !std::prev(end)->isData()) --end;
  return end;
}

// The line up to its "=" and the blanks behind that.
std::string_view upToValue(const ProfileLine& entry) {
  const std::string_view value = valueOf(entry);
  return entry.bytes().substr(0, static_cast<std::size_t>(value.data() - entry.bytes().data()));
}

bool isOneLine(std::string_view text) {
  while (!text.empty()) {
    const char byte = text.front();
    if (byte == '\r' || byte == '\n') return false;
    if (static_cast<unsigned char>(byte) < 0x80) {
      text.remove_prefix(1);
    } else {
      const std::size_t size = text.size();
      takeCodePoint(text);
      if (size - text.size() == 1) return false;  // ill-formed
    }
  }
  return true;
}

// New lines end as the first one does; of a file without any, as the format has it.
std::string_view firstLineEnd(std::string_view text) {
  LineReader reader(text);
  const std::string_view end = reader.atEnd() ? std::string_view() : lineEndOf(reader.next());
  return end.empty() ? kLineBreak : end;
}

}  // namespace

ProfileSections::ProfileSections(std::string text)
    : source_(std::move(text)),
      sections_(1),
      lineEnd_(firstLineEnd(source_)),
      lacksLineEnd_(lineEndOf(source_).empty()) {
  for (LineReader reader(source_); !reader.atEnd();) {
    std::vector<ProfileLine>& lines = sections_.back().lines;
    const ProfileLine& line = lines.emplace_back(reader.next());
    if (line.kind() != LineKind::header) continue;
    const ProfileLine header = line;
    lines.pop_back();
    sections_.emplace_back().header = header;
  }
  names_.reset(sections_.size());
  for (std::uint32_t at = 1; at < sections_.size(); ++at) names_.add(sections_[at].header.name(), at);
}

ProfileSection* ProfileSections::find(std::string_view name) {
  const auto isThere = [&](std::uint32_t at) {
    const ProfileLine& header = sections_[at].header;
    return header.kind() == LineKind::header && sameName(header.name(), name);
  };
  if (!isThere(lastFound_)) {
    const auto found = names_.find(name, isThere);
    if (!found) return nullptr;
    lastFound_ = *found;
  }
  return &sections_[lastFound_];
}

ProfileLine* ProfileSections::findEntry(ProfileSection& section, std::string_view key) {
  countOn(section);
  if (const auto number = numberOf(key); number && *number < section.counted) {
    ProfileLine& line = section.lines[*number];
    if (isEntryOf(line, key)) return &line;
  }
  // Then there is no line that could be any other key.
  if (section.counted == section.lines.size()) return nullptr;
  if (!section.indexed) indexKeys(section);
  const auto found = section.keys.find(key, [&](std::uint32_t at) { return isEntryOf(section.lines[at], key); });
  return found ? &section.lines[*found] : nullptr;
}

ProfileSection& ProfileSections::addSection(std::string_view name) {
  if (ProfileLine* const last = lastLine()) supplyLineEnd(*last);
  const ProfileLine header(added_.keep("[", name, "]", lineEnd_));
  names_.add(header.name(), static_cast<std::uint32_t>(sections_.size()));
  sections_.emplace_back().header = header;
  return sections_.back();
}

bool ProfileSections::addEntry(ProfileSection& section, std::string_view key, std::string_view value) {
  const auto place = endOfData(section.lines);
  supplyLineEnd(place == section.lines.begin() ? section.header : *std::prev(place));
  const std::string_view bytes = added_.keep(key, "=", value, lineEnd_);
  // No key stands behind it, so every position in the index is still right.
  if (section.indexed) section.keys.add(key, static_cast<std::uint32_t>(place - section.lines.begin()));
  const bool asMeant = readsBackAsKey(key);
  if (asMeant) {
    section.lines.emplace(place, bytes, key.size());
  } else {
    section.lines.emplace(place, bytes);
  }
  return asMeant;
}

void ProfileSections::changeValue(ProfileLine& entry, std::string_view value) {
  std::string_view start = upToValue(entry);
  // Blanks that a value brings along replace those that stand there, lest the line grow with every write.
  if (!value.empty() && isBlank(value.front())) start = start.substr(0, start.rfind('=') + 1);
  entry.setBytes(added_.keep(start, value, lineEndOf(entry.bytes())));
}

bool ProfileSections::setLines(ProfileSection& section, std::span<const std::string> lines) {
  if (!lines.empty()) supplyLineEnd(section.header);
  section.lines.clear();
  section.counted = 0;
  section.indexed = false;
  bool noHeaders = true;
  for (const std::string& line : lines) {
    section.lines.emplace_back(added_.keep(asOneLine(line), lineEnd_));
    noHeaders = noHeaders && section.lines.back().kind() != LineKind::header;
  }
  return noHeaders;
}

std::string_view ProfileSections::asOneLine(std::string_view text) {
  if (isOneLine(text)) return text;
  std::string line;
  line.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = takeCodePoint(text);
    appendCodePoint(line, character == U'\r' || character == U'\n' ? U' ' : character);
  }
  return added_.keep(line);
}

std::string ProfileSections::text() const {
  // Neighbours mostly stand side by side in memory too, and are then copied in one go.
  std::vector<std::string_view> runs(1);
  std::size_t size = 0;
  const auto append = [&](std::string_view bytes) {
    size += bytes.size();
    std::string_view& last = runs.back();
    if (bytes.data() == last.data() + last.size()) {
      last = {last.data(), last.size() + bytes.size()};
    } else {
      runs.push_back(bytes);
    }
  };
  for (const ProfileSection& section : sections_) {
    append(section.header.bytes());
    for (const ProfileLine& line : section.lines) append(line.bytes());
  }
  std::string text;
  text.reserve(size);
  for (const std::string_view run : runs) text += run;
  return text;
}

ProfileLine* ProfileSections::lastLine() {
  for (auto section = sections_.rbegin(); section != sections_.rend(); ++section) {
    for (auto line = section->lines.rbegin(); line != section->lines.rend(); ++line) {
      if (!line->bytes().empty()) return &*line;
    }
    if (!section->header.bytes().empty()) return &section->header;
  }
  return nullptr;
}

void ProfileSections::supplyLineEnd(ProfileLine& line) {
  if (!lacksLineEnd_) return;
  if (lineEndOf(line.bytes()).empty()) line.setBytes(added_.keep(line.bytes(), lineEnd_));
}

}  // namespace base
