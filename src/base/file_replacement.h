// Replacing a file whole, so that neither a failure nor a power cut leaves half of it.
#pragma once

#include <string>
#include <string_view>

namespace base {

/// Replaces the file at `path` by `bytes`: whoever reads it, also after a power cut, finds the old or the new one.
/// Links are followed, permissions kept. A Failure names the file, which then holds what it held before; nothing is
/// left beside it.
void replaceFile(const std::string& path, std::string_view bytes);

}  // namespace base
