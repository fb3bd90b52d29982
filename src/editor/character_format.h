// The character format of the document: typeface, size, bold, italic and underlined type, and the controls that show
// it.
#pragma once

#include "app/frame/main_window.h"
#include "base/rich_text.h"

namespace editor {

/// The format of an empty document: Arial, as everywhere, in a size that is read at a glance.
base::CharFormat startFormat();

/// Gives the selection, or what is typed next, what the selectors and buttons of the main window show; a selector that
/// shows nothing changes nothing.
void applyFormat(const app::frame::MainWindow& window, base::RichText& document);

/// Shows the format at the selection in the selectors and buttons of the main window.
void showFormat(app::frame::MainWindow& window, const base::RichText& document);

}  // namespace editor
