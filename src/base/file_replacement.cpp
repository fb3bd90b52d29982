// Replacing a file whole: write beside it, flush to disk, rename, flush the directory.
#include "base/file_replacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "base/descriptor.h"
#include "base/files.h"

namespace base {
namespace {

namespace fs = std::filesystem;

using OldFile = std::optional<struct stat>;

// The file that the links at `path` end in; it need not exist.
std::string behindLinks(const std::string& path) {
  constexpr int kMostLinks = 40;  // as the kernel
  fs::path target = path;
  for (int links = 0; links <= kMostLinks; ++links) {
    std::error_code ignored;
    if (!fs::is_symlink(fs::symlink_status(target, ignored))) return target.string();
    std::error_code error;
    const fs::path next = fs::read_symlink(target, error);
    if (error) throw fileFailure(error.value(), path);
    target = target.parent_path() / next;
  }
  throw fileFailure(ELOOP, path);
}

// What is known of the file to be replaced; nothing when it is missing. Renaming needs no right to write the file
// itself, so a file that must not be written is refused here, also when the user is root and could.
OldFile replaceable(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    if (errno == ENOENT) return std::nullopt;
    throw fileFailure(errno, path);
  }
  const bool readOnly = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
  if (!S_ISREG(status.st_mode) || readOnly) throw fileFailure(ErrorNumber::pathFileAccess, path);
  if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) throw fileFailure(errno, path);
  return status;
}

constexpr mode_t kPermissions = 07777;
constexpr mode_t kReadWriteExecute = 0777;

// The rights that remain when the group is another than it was: nobody gets one by now being in the group or now being
// outside it, so both have what both had.
mode_t whateverTheGroup(mode_t mode) {
  const mode_t both = (mode >> 3U) & mode & S_IRWXO;
  return S_IRWXU | both << 3U | both;
}

std::string pathBeside(const std::string& target) {
  constexpr std::size_t kLongestStem = 200;  // a name ends at 255 bytes
  const fs::path path(target);
  std::string name = ".";
  name.append(path.filename().string(), 0, kLongestStem).append(".neu");
  return (path.parent_path() / name).string();
}

// The file that is written beside its target and then takes the target's name.
//
// Its own name is always the same, and locked while it is written: what a power cut left behind is overwritten by the
// next replacement, and two programs that replace the same file wait for each other.
class Replacement {
 public:
  Replacement(std::string target, mode_t mode)
      : target_(std::move(target)), path_(pathBeside(target_)), file_(openLocked(mode)) {}
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (!renamed_) ::unlink(path_.c_str());
  }

  // Giving a file to another owner is a right that few have; without it the group is kept alone, if that may be.
  void takeOverRights(const struct stat& old) {
    constexpr auto kSameOwner = static_cast<uid_t>(-1);
    const auto give = [&](uid_t owner) { return ::fchown(file_.number(), owner, old.st_gid) == 0; };
    mode_t mode = old.st_mode;
    if (give(old.st_uid)) {
      mode &= kPermissions;
    } else {
      mode &= give(kSameOwner) ? kReadWriteExecute : whateverTheGroup(mode);
    }
    if (::fchmod(file_.number(), mode) != 0) throw fileFailure(errno, target_);
  }

  void write(std::string_view bytes) {
    if (::ftruncate(file_.number(), 0) != 0) throw fileFailure(errno, target_);
    while (!bytes.empty()) {
      const ssize_t written = ::write(file_.number(), bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) throw fileFailure(errno, target_);
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    if (::fsync(file_.number()) != 0) throw fileFailure(errno, target_);
  }

  void takePlace() {
    if (::rename(path_.c_str(), target_.c_str()) != 0) throw fileFailure(errno, target_);
    renamed_ = true;
    // Should this fail, a power cut may bring the old file back, whole: no failure of what has just succeeded.
    const Descriptor directory(::open(directoryOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.isOpen()) ::fsync(directory.number());
  }

 private:
  [[nodiscard]] int openLocked(mode_t mode) const {
    for (;;) {
      const int number = ::open(path_.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, mode);
      if (number < 0) throw fileFailure(errno, target_);
      while (::flock(number, LOCK_EX) != 0 && errno == EINTR) continue;
      if (stillNamed(number)) return number;
      ::close(number);
    }
  }

  // False when another program has renamed or removed the file while we waited for the lock.
  [[nodiscard]] bool stillNamed(int number) const {
    struct stat open {};
    struct stat named {};
    if (::fstat(number, &open) != 0 || ::lstat(path_.c_str(), &named) != 0) return false;
    return open.st_ino == named.st_ino && open.st_dev == named.st_dev;
  }

  std::string target_;
  std::string path_;
  Descriptor file_;
  bool renamed_ = false;
};

// The rights come before the first byte, so that nobody reads here what he could not read there.
void writeWhole(const std::string& target, const OldFile& rights, std::string_view bytes) {
  constexpr mode_t kOwnerOnly = 0600;
  constexpr mode_t kByUmask = 0666;
  Replacement replacement(target, rights ? kOwnerOnly : kByUmask);
  if (rights) replacement.takeOverRights(*rights);
  replacement.write(bytes);
  replacement.takePlace();
}

}  // namespace

void replaceFile(const std::string& path, std::string_view bytes) {
  if (path.empty() || path.find('\0') != std::string::npos) throw fileFailure(ErrorNumber::badFileName, path);
  const std::string target = behindLinks(path);
  writeWhole(target, replaceable(target), bytes);
}

void writeCopy(const std::string& target, std::string_view bytes, const std::string& original) {
  struct stat rights {};
  if (::stat(original.c_str(), &rights) != 0) throw fileFailure(errno, original);
  writeWhole(target, rights, bytes);
}

}  // namespace base
