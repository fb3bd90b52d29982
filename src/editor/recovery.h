// A recovery copy: a text that is not saved yet lies beside the settings as RTF, for the start that follows a crash.
//
// Its name tells which text it is, and bears the number of the process that writes it, so that two programs in one
// directory keep apart; a copy whose process is gone was left behind. It goes with the process's clean end.
#pragma once

#include <optional>
#include <string>

#include "base/rich_text.h"

namespace editor {

class RecoveryCopy {
 public:
  /// Of the text whose copies are named by `stem` and the number of a process.
  RecoveryCopy(std::string directory, std::string stem);

  [[nodiscard]] const std::string& path() const { return path_; }

  /// The text changed since it was written last.
  [[nodiscard]] bool isBehind(const base::RichText& text) const { return writtenRevision_ != text.revision(); }
  /// What was to be written has failed.
  void fellBehind() { writtenRevision_.reset(); }
  /// `text` as it is now has been, or is being, written.
  void keepsUpWith(const base::RichText& text) { writtenRevision_ = text.revision(), isThere_ = true; }
  /// Replaces the copy by `text`; a failure is the caller's.
  void write(const base::RichText& text) const;

  /// Takes the newest copy that a process left behind as this one's own; nothing when there is none.
  bool adopt();
  /// What the copy holds.
  [[nodiscard]] base::Document read() const;
  /// Puts an adopted copy aside under the first free name "Verworfen-1.rtf", "Verworfen-2.rtf", …
  void putAside();
  /// There is nothing to recover any more.
  void remove();

 private:
  std::string directory_;
  std::string stem_;
  std::string path_;
  std::optional<std::uint64_t> writtenRevision_;
  bool isThere_ = false;
};

}  // namespace editor
