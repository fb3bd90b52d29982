// The document that is open: which file it belongs to, and whether it has changed since it was loaded or saved.
#pragma once

#include <cstdint>
#include <string>

#include "base/controls.h"
#include "base/platform.h"
#include "base/rich_text.h"

namespace editor {

inline constexpr std::string_view kOpenFilter =
    "RTF-Dokument (*.rtf)|*.rtf|Textdatei (*.txt)|*.txt|Alle Dateien (*.*)|*.*";
inline constexpr std::string_view kSaveFilter = "RTF-Dokument (*.rtf)|*.rtf";

struct OpenDocument {
  std::string file;                 // the whole path, empty for a new document
  std::uint64_t savedRevision = 0;  // of the text as it was loaded or saved
};

/// The text is as it was loaded or saved; any change of text or format ends that.
bool isSaved(const OpenDocument& document, const base::RichText& text);
void markSaved(OpenDocument& document, const base::RichText& text);

/// Reads a file of RTF or plain text, with the hourglass on. What cannot be read, and what is no text, is a Failure.
base::Document readDocument(const std::string& path, base::Platform& platform);

/// Empties the text and its format.
void clearText(base::RichText& text);

/// Asks for a name and writes the text as RTF under it, ".rtf" appended unless the name ends in exactly that; a file of
/// that name is asked about. Returns the path. Leaving the dialog is a Failure (cancelled).
std::string saveByDialog(const base::RichText& text, const std::string& suggestion, base::Platform& platform);

/// The question before unsaved changes are lost: Yes asks to save, No lets them go, Cancel ends the command.
base::MessageAnswer askToSave(base::Platform& platform);

}  // namespace editor
