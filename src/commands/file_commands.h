// The commands on document files: new, open, save, the recent file, and what protects unsaved work.
#pragma once

#include <string>

#include "base/wiring.h"
#include "commands/main_parts.h"

namespace commands {

void wireFiles(base::Wiring& wiring, const MainParts& parts);

/// Opens `path` as the Open command does with the file chosen in its dialog.
void openFile(const MainParts& parts, const std::string& path);

/// The document shows `document`, which belongs to no file and was not saved yet.
void showRecovered(const MainParts& parts, const base::Document& document);

/// Caption, recent-file entry and the user's own key, once `path` is the current file.
void showCurrentFile(const MainParts& parts, const std::string& path);

/// The save dialog and all that follows it; a failure, cancelling included, is the caller's.
void SaveNow(const MainParts& parts);

}  // namespace commands
