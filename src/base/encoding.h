// The encodings of text files: UTF-8 and UTF-16 behind their marks, UTF-8 without one, and code page 1252 for all else.
//
// A file of UTF-16 holds whole characters; a stray half of one, which no text editor writes, is read as U+FFFD.
#pragma once

#include <string>
#include <string_view>

namespace base {

enum class Encoding { utf8, markedUtf8, utf16LittleEndian, utf16BigEndian, codePage1252 };

/// Looks at the mark in front or, without one, at every byte.
Encoding encodingOf(std::string_view bytes);

/// The text in UTF-8 without a mark.
std::string decoded(std::string bytes, Encoding encoding);
/// The same for bytes in the encoding that they appear to have.
std::string decoded(std::string bytes);

/// `text` with its mark as a reader will recognise it; in UTF-8 where `encoding` cannot hold it.
std::string encoded(std::string text, Encoding encoding);

}  // namespace base
