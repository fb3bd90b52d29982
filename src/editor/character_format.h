// The format of the document: typeface, size and marks of its characters, their colour, the alignment of paragraphs,
// and the controls that show them.
#pragma once

#include "base/platform.h"
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
void applyStrikeOut(const frame::MainWindow& window, base::RichText& document);
void applySuperscript(const frame::MainWindow& window, base::RichText& document);
void applySubscript(const frame::MainWindow& window, base::RichText& document);

/// As applySize(), unless the selector shows the present size: a selection of several sizes keeps them.
void applyOtherSize(const frame::MainWindow& window, base::RichText& document);

/// Ask for a format, beginning with the one at the selection, and give it to the selection or to what is typed next. A
/// dialog of fonts leaves colours, super- and subscripts alone.
void chooseFont(base::RichText& document, base::Platform& platform);
void chooseColour(base::RichText& document, base::Platform& platform);

/// Shows the format at the selection in the selectors and buttons of the main window.
void showFormat(frame::MainWindow& window, const base::RichText& document);

}  // namespace editor
