// The character format of the document: typeface of the selection, and the controls that show it.
#pragma once

#include <string>

#include "app/frame/main_window.h"
#include "base/rich_text.h"

namespace editor {

/// The format of an empty document: Arial, as everywhere, in a size that is read at a glance.
base::CharFormat startFormat();

/// Gives the selection, or what is typed next, the typeface chosen in cboFontSelect.
void chooseTypeface(const app::frame::MainWindow& window, base::RichText& document);

/// Shows the format at the selection in the selectors of the main window.
void showFormat(app::frame::MainWindow& window, const base::RichText& document);

}  // namespace editor
