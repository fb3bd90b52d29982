// Files on disk: reading one whole, paths, and what the operating system's errors are to us.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/failure.h"

namespace base {

/// The failure for the system error `osError` (an errno) at the file `path`; its text names the file.
Failure fileFailure(int osError, const std::string& path);
/// A failure with the sentence of the table and, in a line of its own, the file it happened at.
Failure fileFailure(ErrorNumber number, const std::string& path);

/// The bytes of a file; nothing when it is missing. A directory or an unreadable file is a Failure.
std::optional<std::string> readFile(const std::string& path);

/// True when `path` is a normal file (a link to one counts); a directory or an unreadable path is not.
bool FileExists(const std::string& path);

/// The directory a file lies in, "." for a bare name.
std::string directoryOf(const std::string& path);

/// Directory and file name joined: by "\" when the directory is in Windows form (drive letter or backslashes and not
/// starting with "/"), else by "/"; a separator that is there is not doubled. No directory leaves the name alone.
std::string joinPath(std::string_view directory, std::string_view name);

}  // namespace base
