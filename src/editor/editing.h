// The editing commands of the document: cut, copy, paste, delete, select all.
#pragma once

#include "base/platform.h"
#include "base/rich_text.h"

namespace editor {

/// With nothing selected neither changes the clipboard.
void cutSelection(base::RichText& document, base::Platform& platform);
void copySelection(const base::RichText& document, base::Platform& platform);
/// The clipboard's text takes the place of the selection, in its format.
void pasteText(base::RichText& document, const base::Platform& platform);
void deleteSelection(base::RichText& document);
void selectAll(base::RichText& document);

}  // namespace editor
