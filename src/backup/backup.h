// The files of the data that can be copied elsewhere and brought back, and the steps on directories that this takes.
//
// Files are copied whole; nothing is compressed or versioned. The data of a program directory and of a copy lie
// directly in their directory under the same names.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace backup {

/// The kinds of data in the order in which they are copied.
enum class Kind { options, appointments, adjustments, prices };
inline constexpr std::array kKinds = {Kind::options, Kind::appointments, Kind::adjustments, Kind::prices};

[[nodiscard]] std::string pathOf(Kind kind, const std::string& directory);

/// What messages call those of which `directory` holds a file, in the order in which they are told.
[[nodiscard]] std::vector<std::string_view> namesIn(const std::string& directory);

/// A copy that came to a failure is `Failure`; the target then holds what it held before.
void copyFile(Kind kind, const std::string& from, const std::string& to);

/// The same for what is in use: what gives way is kept under the first free name "<file>.1", "<file>.2", …, unless one
/// of them holds it already.
void restoreFile(Kind kind, const std::string& from, const std::string& to);

/// An absolute path of a directory that is there.
[[nodiscard]] bool isValidDirectory(const std::string& path);
/// Whether two paths, both of directories that are there, lead to the same one.
[[nodiscard]] bool isSameDirectory(const std::string& one, const std::string& other);
/// The path without links, "." and ".."; as it is where that cannot be told.
[[nodiscard]] std::string tidied(const std::string& path);
/// A Failure when what is in the directory cannot be listed.
void requireReadable(const std::string& directory);

/// Creates a directory and returns its path. Error 58 when it is there already, 76 when its parent is missing.
std::string makeDirectory(const std::string& parent, const std::string& name);

inline constexpr std::size_t kPathShown = 60;  // characters, the mark of what was cut included

/// The path as its label shows it: one that is too long is cut and ends with " ...".
[[nodiscard]] std::string shortenedPath(const std::string& path);

}  // namespace backup
