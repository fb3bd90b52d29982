// The editing commands of the document: cut, copy, paste, delete, select all. What is copied goes with its formats.
#pragma once

#include "base/platform.h"
#include "base/rich_text.h"

namespace editor {

/// With nothing selected neither changes the clipboard.
void cutSelection(base::RichText& document, base::Platform& platform);
void copySelection(const base::RichText& document, base::Platform& platform);
/// The whole text, whatever is selected.
void copyAll(const base::RichText& document, base::Platform& platform);
/// What the clipboard holds takes the place of the selection: in formats of its own or, where it brings none, in that
/// of the place. An empty clipboard takes nothing away.
void paste(base::RichText& document, const base::Platform& platform);
/// The same in the format of the place.
void pastePlain(base::RichText& document, const base::Platform& platform);
void deleteSelection(base::RichText& document);
void selectAll(base::RichText& document);

}  // namespace editor
