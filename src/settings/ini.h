// The operations on settings files that the rest of the program uses: one value, one array, one section.
//
// Each opens, changes and replaces its file by itself and remembers nothing. They throw base::Failure, stamped with the
// tag of the operation; showing it is up to the procedure that the person triggered. An array is stored as the bare
// lines of its section, one element a line.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/profile_file.h"

namespace settings {

inline constexpr std::string_view kSetValueTag = "modGlobal-INISetValue";
inline constexpr std::string_view kGetValueTag = "modGlobal-INIGetValue";
inline constexpr std::string_view kSetArrayTag = "modGlobal-INISetArray";

/// Writes one value; creates file and section when they are missing.
void INISetValue(const std::string& file, std::string_view section, std::string_view key, std::string_view value);

/// The stored value, cut to the 31 characters that the classic buffer holds; "" when file, section or key is missing.
std::string INIGetValue(const std::string& file, std::string_view section, std::string_view key);

/// Deletes the section and writes it anew at the end of the file. The first empty element ends what is stored; without
/// data nothing is left of the section.
void INISetArray(const std::string& file, std::string_view section, std::span<const std::string> array);

/// Whether the array comes back from its section as it is, outer blanks aside: that no element up to the first empty
/// one is blank, a header, a comment or of several lines, and that all of it fits the buffer of a list.
bool comesBack(std::span<const std::string> array);

/// INISetArray() on a file in memory, for the caller that changes more than one section in one replacement.
void replaceArray(base::ProfileFile& file, std::string_view section, std::span<const std::string> array);

/// Fills the array from its first element with the lines of the section; lines that it has no room for are dropped, and
/// elements without a line keep what they hold. Errors are passed over: the array then stays as it is.
void INIGetArray(const std::string& file, std::string_view section, std::span<std::string> array);

/// Removes the section and all its keys. A Failure has no tag of this operation.
void INIDeleteSection(const std::string& file, std::string_view section);

}  // namespace settings
