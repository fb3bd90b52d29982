// The editing commands of the document.
#include "editor/editing.h"

#include <limits>
#include <optional>
#include <string>

namespace editor {

void cutSelection(base::RichText& document, base::Platform& platform) {
  copySelection(document, platform);
  deleteSelection(document);
}

void copySelection(const base::RichText& document, base::Platform& platform) {
  if (document.selection().length > 0) platform.setClipboard(document.selectedDocument());
}

void copyAll(const base::RichText& document, base::Platform& platform) { platform.setClipboard(document.document()); }

void paste(base::RichText& document, const base::Platform& platform) {
  const std::optional<base::Document> formatted = platform.clipboardDocument();
  formatted ? document.replaceSelection(*formatted) : pastePlain(document, platform);
}

void pastePlain(base::RichText& document, const base::Platform& platform) {
  const std::string text = platform.clipboardText();
  if (!text.empty()) document.replaceSelection(text);
}

void deleteSelection(base::RichText& document) {
  if (document.selection().length > 0) document.replaceSelection("");
}

void selectAll(base::RichText& document) {
  document.select({.start = 0, .length = std::numeric_limits<std::int64_t>::max()});
}

}  // namespace editor
