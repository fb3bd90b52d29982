// Replacing a file whole, so that neither a failure nor a power cut leaves half of it.
#pragma once

#include <string>
#include <string_view>

namespace base {

/// Replaces the file at `path` by `bytes`: whoever reads it, also after a power cut, finds the old or the new one.
/// Links are followed. Owner, group and permissions are kept as far as the user may give them; where the group cannot
/// be, nobody is given a right by it. A Failure names the file, which then holds what it held before; nothing is left
/// beside it.
void replaceFile(const std::string& path, std::string_view bytes);

/// Writes `bytes` to `target`, where no file is yet, in the same way and with the rights of the file `original`.
void writeCopy(const std::string& target, std::string_view bytes, const std::string& original);

}  // namespace base
