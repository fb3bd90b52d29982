// A recovery copy: work that is not saved yet lies beside the settings, for the start that follows a crash.
//
// Its name tells which work it is, and bears the number of the process that writes it, so that two programs in one
// directory keep apart; a copy whose process is gone was left behind. It goes with the process's clean end.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace editor {

class RecoveryCopy {
 public:
  /// Of the work whose copies are named by `stem`, the number of a process and `suffix`.
  RecoveryCopy(std::string directory, std::string stem, std::string suffix);

  [[nodiscard]] const std::string& path() const { return path_; }

  /// The work changed since it was written last.
  [[nodiscard]] bool isBehind(std::uint64_t revision) const { return writtenRevision_ != revision; }
  /// What was to be written has failed.
  void fellBehind() { writtenRevision_.reset(); }
  /// The work as it is at `revision` has been, or is being, written.
  void keepsUpWith(std::uint64_t revision) { writtenRevision_ = revision, isThere_ = true; }
  /// Replaces the copy by `bytes`; a failure is the caller's.
  void write(std::string_view bytes) const;

  /// Takes the newest copy that a process left behind as this one's own; nothing when there is none.
  bool adopt();
  /// What the copy holds.
  [[nodiscard]] std::string read() const;
  /// Puts an adopted copy aside under the first free name "Verworfen-1", "Verworfen-2", … and tells where it lies now.
  std::string putAside();
  /// There is nothing to recover any more.
  void remove();

 private:
  std::string directory_;
  std::string stem_;
  std::string suffix_;
  std::string path_;
  std::optional<std::uint64_t> writtenRevision_;
  bool isThere_ = false;
};

}  // namespace editor
