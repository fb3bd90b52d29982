// Code page 1252, in which older installations wrote their files, to UTF-8 and back.
//
// The five bytes that the code page leaves undefined (81, 8D, 8F, 90, 9D) stand for the control characters of the same
// number, so every file survives the way there and back byte for byte.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

std::string fromCodePage1252(std::string_view bytes);

/// `text` in code page 1252; nothing when a character of it has no place there.
std::optional<std::string> toCodePage1252(std::string_view text);

/// As isValidUtf8(), but made for whole files, which are ASCII for the most part.
bool isUtf8File(std::string_view bytes);

}  // namespace base
