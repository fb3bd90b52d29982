// Files on disk: reading one whole, paths, and what the operating system's errors are to us.
#include "base/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "base/descriptor.h"

namespace base {
namespace {

ErrorNumber numberOf(int osError, const std::string& path) {
  switch (osError) {
    case ENOENT: {
      std::error_code ignored;
      const bool directoryExists = std::filesystem::is_directory(directoryOf(path), ignored);
      return directoryExists ? ErrorNumber::fileNotFound : ErrorNumber::pathNotFound;
    }
    case ENOTDIR:
      return ErrorNumber::pathNotFound;
    case EACCES:
    case EPERM:
    case EBUSY:
    case ETXTBSY:
      return ErrorNumber::permissionDenied;
    case EISDIR:
    case EROFS:
    case ELOOP:
      return ErrorNumber::pathFileAccess;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::diskFull;
    case ENAMETOOLONG:
    case EINVAL:
      return ErrorNumber::badFileName;
    case ENODEV:
    case ENXIO:
      return ErrorNumber::deviceUnavailable;
    default:
      return ErrorNumber::deviceIo;
  }
}

bool isWindowsForm(std::string_view directory) {
  if (directory.starts_with('/')) return false;
  const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  const bool drive = directory.size() >= 2 && directory[1] == ':' && isLetter(directory[0]);
  return drive || directory.find('\\') != std::string_view::npos;
}

}  // namespace

Failure fileFailure(int osError, const std::string& path) { return fileFailure(numberOf(osError, path), path); }

Failure fileFailure(ErrorNumber number, const std::string& path) {
  return Failure(number, withPlace(errorText(number), path, number));
}

std::optional<std::string> readFile(const std::string& path) {
  // Not to wait for the other end, should this be a pipe.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!file.isOpen()) {
    if (errno == ENOENT || errno == ENOTDIR) return std::nullopt;
    throw fileFailure(errno, path);
  }
  struct stat status {};
  if (::fstat(file.number(), &status) != 0) throw fileFailure(errno, path);
  if (!S_ISREG(status.st_mode)) throw fileFailure(ErrorNumber::pathFileAccess, path);
  // One byte more than the file has, so that its end is seen; it may grow meanwhile.
  std::string bytes(static_cast<std::size_t>(status.st_size) + 1, '\0');
  for (std::size_t size = 0;;) {
    const ssize_t got = ::read(file.number(), bytes.data() + size, bytes.size() - size);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw fileFailure(errno, path);
    size += static_cast<std::size_t>(got);
    if (got == 0) return bytes.resize(size), bytes;
    if (size == bytes.size()) bytes.resize(2 * size);
  }
}

bool FileExists(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(path, ignored);
}

std::string directoryOf(const std::string& path) {
  const std::string directory = std::filesystem::path(path).parent_path().string();
  return directory.empty() ? "." : directory;
}

std::string joinPath(std::string_view directory, std::string_view name) {
  const bool windows = isWindowsForm(directory);
  std::string path(directory);
  const bool separated = path.empty() || path.ends_with('/') || (windows && path.ends_with('\\'));
  if (!separated) path += windows ? '\\' : '/';
  return path.append(name);
}

}  // namespace base
