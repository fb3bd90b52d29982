// The user's own words: a UTF-8 text file beside the settings, one word a line, which an editor opens as well.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace editor {

/// A missing file holds none. Lines that can be no word are passed over. A file that cannot be read is a Failure.
std::vector<std::u32string> readOwnWords(const std::string& path);

/// Puts `word` behind what the file holds, which stays as it is. A file that cannot be read or written is a Failure.
void appendOwnWord(const std::string& path, std::u32string_view word);

}  // namespace editor
