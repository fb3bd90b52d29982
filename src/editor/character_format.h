// The character format of the document: typeface, size, bold, italic and underlined type, and the controls that show
// it.
#pragma once

#include "base/rich_text.h"
#include "frame/main_window.h"

namespace editor {

/// The format of an empty document: Arial 8.
base::CharFormat startFormat();

/// Each gives the selection, or what is typed next, what its selector or button in the main window shows, and leaves
/// the rest of every character's format. A selector that shows nothing changes nothing.
void applyTypeface(const frame::MainWindow& window, base::RichText& document);
void applySize(const frame::MainWindow& window, base::RichText& document);
void applyBold(const frame::MainWindow& window, base::RichText& document);
void applyItalic(const frame::MainWindow& window, base::RichText& document);
void applyUnderline(const frame::MainWindow& window, base::RichText& document);

/// Shows the format at the selection in the selectors and buttons of the main window.
void showFormat(frame::MainWindow& window, const base::RichText& document);

}  // namespace editor
