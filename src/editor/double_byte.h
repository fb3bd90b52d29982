// The double-byte code pages of East Asia: 932, 936, 949, 950 and 1361.
#pragma once

#include <string>
#include <string_view>

namespace editor {

/// Appends what `bytes` say in the double-byte page of that number; U+FFFD for each half or pair that says nothing.
void appendDoubleByte(std::string& text, int page, std::string_view bytes);

}  // namespace editor
