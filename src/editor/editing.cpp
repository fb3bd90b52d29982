// The editing commands of the document.
#include "editor/editing.h"

#include <limits>
#include <string>

namespace editor {

void cutSelection(base::RichText& document, base::Platform& platform) {
  copySelection(document, platform);
  deleteSelection(document);
}

void copySelection(const base::RichText& document, base::Platform& platform) {
  if (document.selection().length > 0) platform.setClipboardText(document.selectedText());
}

void pasteText(base::RichText& document, const base::Platform& platform) {
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
