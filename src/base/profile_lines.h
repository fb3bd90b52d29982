// The lines of a profile file: where bytes are cut into lines, what each line is, and memory for new ones.
//
// A line is a view of bytes that somebody else keeps, line end included; the text of a new line is kept by a TextStore.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace base {

enum class LineKind : std::uint8_t { blank, comment, header, entry, text };

/// Kept small, since a file has tens of thousands; lines and their names are shorter than 4 GiB.
class ProfileLine {
 public:
  /// A line of no bytes.
  ProfileLine() = default;
  /// What a reader takes the bytes for.
  explicit ProfileLine(std::string_view bytes);
  /// An entry that is known to be one; its bytes begin with its name.
  ProfileLine(std::string_view bytes, std::size_t nameSize);

  [[nodiscard]] LineKind kind() const { return kind_; }
  /// As in the file, line end included.
  [[nodiscard]] std::string_view bytes() const { return {start_, size_}; }
  /// The name of a header or an entry, without outer blanks.
  [[nodiscard]] std::string_view name() const { return {start_ + nameStart_, nameSize_}; }
  /// True for a line that is neither blank nor comment.
  [[nodiscard]] bool isData() const { return kind_ == LineKind::entry || kind_ == LineKind::text; }
  /// Other bytes, which begin as those before up to the end of the name.
  void setBytes(std::string_view bytes);

 private:
  void setName(LineKind kind, std::string_view name);

  const char* start_ = "";
  std::uint32_t size_ = 0;
  std::uint32_t nameStart_ = 0;
  std::uint32_t nameSize_ = 0;
  LineKind kind_ = LineKind::blank;
};

/// Space, TAB, VT and FF: the library's idea of a blank depends on the locale and takes line ends in.
constexpr bool isBlank(char byte) { return byte == ' ' || byte == '\t' || byte == '\v' || byte == '\f'; }

constexpr std::string_view withoutOuterBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// The line's text without line end and outer blanks.
std::string_view contentOf(const ProfileLine& line);
/// What stands behind the "=" of an entry, without line end and outer blanks.
std::string_view valueOf(const ProfileLine& line);
/// CR LF, LF or CR, or nothing for a last line without line end.
constexpr std::string_view lineEndOf(std::string_view bytes) {
  std::size_t size = 0;
  if (bytes.ends_with('\n')) size = bytes.ends_with("\r\n") ? 2 : 1;
  if (bytes.ends_with('\r')) size = 1;
  return bytes.substr(bytes.size() - size);
}

/// Cuts bytes into lines, in linear time whatever the line ends are.
class LineReader {
 public:
  explicit LineReader(std::string_view bytes);

  [[nodiscard]] bool atEnd() const { return start_ == bytes_.size(); }
  /// The next line with its line end.
  std::string_view next();

 private:
  std::string_view bytes_;
  std::size_t start_ = 0;
  std::size_t carriageReturn_;  // the first one at or behind start_
  std::size_t lineFeed_;        // likewise
};

/// Keeps texts at a place that does not move, many in one piece of memory.
class TextStore {
 public:
  /// The parts in one text.
  std::string_view keep(std::string_view a, std::string_view b = {}, std::string_view c = {}, std::string_view d = {});

 private:
  void append(std::string_view part);

  std::vector<std::unique_ptr<char[]>> pieces_;
  char* next_ = nullptr;
  std::size_t free_ = 0;
};

}  // namespace base
