// Small operations on UTF-8 text that the standard library lacks.
//
// All text in memory is UTF-8. A length is a count of code points; an ill-formed byte counts as one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace base {

/// The line break of plain texts: carriage return and line feed.
inline constexpr std::string_view kLineBreak = "\r\n";

/// The mark that some programs put in front of a UTF-8 file.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

std::size_t codePointCount(std::string_view text);

/// The first `count` code points of `text`, or all of it when it is shorter.
std::string_view firstCodePoints(std::string_view text, std::size_t count);

/// How many bytes of whole characters two texts begin or end with alike.
std::size_t commonHead(std::string_view a, std::string_view b);
std::size_t commonTail(std::string_view a, std::string_view b);

/// Takes the first code point off `text`, which must not be empty. Ill-formed bytes come as U+FFFD, one each.
char32_t takeCodePoint(std::string_view& text);

void appendCodePoint(std::string& text, char32_t codePoint);

bool isValidUtf8(std::string_view text);

/// As code points; ill-formed bytes come as U+FFFD, one each.
std::u32string toUtf32(std::string_view text);
std::string toUtf8(std::u32string_view text);

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with);

/// Turns every line end (CR LF, LF, CR, U+2028, U+2029) into a blank.
std::string inOneLine(std::string_view text);

/// Turns every line end (CR LF, LF, CR, U+2028, U+2029) into CR LF.
std::string withWindowsLineEnds(std::string_view text);

/// Turns every "," into ".", as every number that is stored as text demands.
std::string withDecimalPoint(std::string_view text);

}  // namespace base
