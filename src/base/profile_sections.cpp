// The sections of a profile file in memory: finding sections and keys in them, changing them, and all of it as text.
#include "base/profile_sections.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

#include "base/code_page.h"
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

// False for a name that a reader would take for something else; such a line is rare and looked at as a reader does.
bool readsBackAsKey(std::string_view name) {
  return !name.starts_with(';') && !name.starts_with('[') && name.find('=') == std::string_view::npos;
}

// Where a new key belongs: behind the last line that is neither blank nor comment.
auto endOfData(std::deque<ProfileLine>& lines) {
  auto end = lines.end();
  while (end != lines.begin() && !std::prev(end)->isData()) --end;
  return end;
}

// The line up to its "=" and the blanks behind that.
std::string_view upToValue(const ProfileLine& entry) {
  const std::string_view value = valueOf(entry);
  return entry.bytes().substr(0, static_cast<std::size_t>(value.data() - entry.bytes().data()));
}

// Quick and careful: false also for some texts that are ASCII without line ends.
bool isPlain(std::string_view text) {
  constexpr std::uint64_t kEach = 0x0101010101010101U;
  for (std::uint64_t word = 0; text.size() >= sizeof word; text.remove_prefix(sizeof word)) {
    std::memcpy(&word, text.data(), sizeof word);
    const std::uint64_t belowBlank = word - kEach * ' ';
    if (((word | belowBlank) & (kEach * 0x80)) != 0) return false;
  }
  return std::all_of(text.begin(), text.end(), [](char byte) { return byte >= ' ' && byte <= '~'; });
}

bool isOneLine(std::string_view text) {
  constexpr std::size_t kNone = std::string_view::npos;
  return isPlain(text) || (text.find('\r') == kNone && text.find('\n') == kNone && isUtf8File(text));
}

}  // namespace

ProfileSections::ProfileSections(std::string text)
    : source_(std::move(text)), sections_(1), lineEnd_(kLineBreak), lacksLineEnd_(lineEndOf(source_).empty()) {
  LineReader reader(source_);
  for (bool first = true; !reader.atEnd(); first = false) {
    const ProfileLine line = asProfileLine(reader.next());
    if (first && !lineEndOf(line.bytes()).empty()) lineEnd_ = lineEndOf(line.bytes());
    if (line.kind() == LineKind::header) {
      sections_.emplace_back().header = line;
    } else {
      sections_.back().lines.push_back(line);
    }
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
  if (!section.indexed) indexKeys(section);
  const auto found = section.keys.find(key, [&](std::uint32_t at) {
    const ProfileLine& line = section.lines[at];
    return line.kind() == LineKind::entry && sameName(line.name(), key);
  });
  return found ? &section.lines[*found] : nullptr;
}

ProfileSection& ProfileSections::addSection(std::string_view name) {
  if (ProfileLine* const last = lastLine()) supplyLineEnd(*last);
  const ProfileLine header = asProfileLine(added_.keep("[", name, "]", lineEnd_));
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
    section.lines.emplace(place, LineKind::entry, bytes, bytes.substr(0, key.size()));
  } else {
    section.lines.insert(place, asProfileLine(bytes));
  }
  return asMeant;
}

void ProfileSections::changeValue(ProfileLine& entry, std::string_view value) {
  entry.setBytes(added_.keep(upToValue(entry), value, lineEndOf(entry.bytes())));
}

bool ProfileSections::setLines(ProfileSection& section, std::span<const std::string> lines) {
  if (!lines.empty()) supplyLineEnd(section.header);
  section.lines.clear();
  section.indexed = false;
  bool noHeaders = true;
  for (const std::string& line : lines) {
    section.lines.push_back(asProfileLine(added_.keep(asOneLine(line), lineEnd_)));
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
