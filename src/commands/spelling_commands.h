// The spelling check of the document, and what its dialog does to it.
#pragma once

#include <string>

#include "commands/main_parts.h"

namespace commands {

/// The menu entry that opens the dialog, and the events of the dialog.
void wireSpelling(base::Wiring& wiring, const MainParts& parts);

/// Puts a word into the file of the user's own words.
void addOwnWord(const MainParts& parts, const std::u32string& word);

}  // namespace commands
