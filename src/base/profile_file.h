// Profile (INI) files: reading, changing and replacing them whole, byte for byte where nothing is changed.
//
// Reading. A header is a line whose first non-blank is "["; the name ends at the first "]". A line is split at its
// first "="; a line whose first non-blank is ";" is a comment. Blanks are space, TAB, VT and FF. Names match without
// regard to letter case, German umlauts included; of duplicates the first counts. Line ends are CR LF, LF or CR.
//
// Writing. An existing key changes in place: what stands up to its value stays. A new key stands behind the last line
// of its section that is neither blank nor comment, a new section at the end of the file; new lines end as the first
// line of the file does. CR and LF inside a text are written as one blank each. A section name ends at its first "]" as
// in a header. A key is not checked: with a "=" in it, it is written but reads back as another.
//
// Characters. In memory UTF-8, lengths in code points. A file with the mark of UTF-16 is read and written back as such;
// one that is not valid UTF-8 is read as code page 1252 and written back so, unless a new text does not fit it.
//
// Errors are base::Failure with the number of the operating system's reason; the file then holds what it held before.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_replacement.h"
#include "base/files.h"

namespace base {

/// A buffer of N characters holds N − 1 of a value: the last place is the terminator.
inline constexpr std::size_t kSettingBuffer = 32;
inline constexpr std::size_t kListBuffer = 255;

class ProfileFile {
 public:
  /// Reads and parses the file once; a missing one is empty. A directory or an unreadable file is a Failure.
  static ProfileFile load(const std::string& path);
  /// The same for the bytes of a file.
  static ProfileFile parse(std::string bytes);

  ProfileFile(ProfileFile&&) noexcept;
  ProfileFile& operator=(ProfileFile&&) noexcept;
  ~ProfileFile();

  /// The trimmed value without its pair of quotes, cut to bufferSize − 1 characters and at a NUL, as a buffer holds it;
  /// nothing when it is missing.
  [[nodiscard]] std::optional<std::string> value(std::string_view section, std::string_view key,
                                                 std::size_t bufferSize) const;
  /// The section's lines, trimmed, without comments and blank lines, as far as bufferSize − 2 characters hold them
  /// (one more counted for each line's end); the last element may be cut.
  [[nodiscard]] std::vector<std::string> sectionLines(std::string_view section, std::size_t bufferSize = 32767) const;

  void setValue(std::string_view section, std::string_view key, std::string_view value);
  void deleteKey(std::string_view section, std::string_view key);
  void deleteSection(std::string_view section);
  /// Replaces the first section of that name in place; the first empty line ends the data. Empty data leaves the bare
  /// header of an existing section and creates no missing one.
  void setSection(std::string_view section, std::span<const std::string> lines);

  /// The file as bytes, in the encoding it was read in or, where that cannot hold a new text, in UTF-8.
  [[nodiscard]] std::string bytes() const;
  /// Replaces the file at `path` whole (written beside it, flushed, renamed) when something was changed.
  void save(const std::string& path);

 private:
  struct Content;
  explicit ProfileFile(std::unique_ptr<Content> content);

  std::unique_ptr<Content> content_;
};

}  // namespace base
