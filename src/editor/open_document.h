// The document that is open: which file it belongs to, and whether it has changed since it was loaded or saved.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/platform.h"
#include "base/rich_text.h"
#include "editor/undo_store.h"

namespace editor {

struct OpenDocument {
  std::string file;                 // the whole path, empty for a new document
  std::uint64_t savedRevision = 0;  // of the text as it was loaded or saved
};

/// A document with the text that shows it and what can be undone in that.
struct DocumentParts {
  OpenDocument& document;
  base::RichText& text;
  UndoStore& undo;
  base::Platform& platform;
};

/// The text is as it was loaded or saved; any change of text or format ends that.
bool isSaved(const OpenDocument& document, const base::RichText& text);
void markSaved(OpenDocument& document, const base::RichText& text);
/// There is text that is not saved.
bool holdsUnsaved(const OpenDocument& document, const base::RichText& text);

/// Empties the text and its format.
void clearText(base::RichText& text);

/// The path to open. Leaving the dialog is a Failure (cancelled).
std::string askForDocument(base::Platform& platform);

/// The document becomes that of the file, which is RTF or plain text. What cannot be read, and what is no text, is a
/// Failure; everything is read before anything of the present document changes.
void loadDocument(const DocumentParts& parts, const std::string& path);

/// Asks for a name and writes the text as RTF under it, ".rtf" appended unless the name ends in exactly that; a file of
/// that name is asked about. The document then is that file's. Leaving the dialog is a Failure (cancelled).
void saveByDialog(const DocumentParts& parts);

/// The path of a file to write, with `suffix`; whether one that exists may be replaced is asked.
std::string askForTarget(const base::FileQuestion& question, std::string_view suffix, base::Platform& platform);

inline constexpr std::string_view kSaveQuestion = "Möchten Sie die Änderungen speichern?";

/// Before unsaved changes are lost: Yes saves them, No lets them go. Cancelling is a Failure (cancelled), and so is a
/// save that is left.
void settleChanges(base::Platform& platform, const std::function<void()>& save,
                   std::string_view question = kSaveQuestion);

}  // namespace editor
