// The offer note: a calculation written out as a block of text, with its heading in bold and a rule at its end.
#pragma once

#include <string_view>

#include "base/document.h"
#include "frame/main_window.h"

namespace calc {

/// Quotes what is selected of the lettering, or all of it, and tells the prices as `window` shows them. Begins and ends
/// with line ends, so that one block follows another.
base::Document offerNote(const frame::MainWindow& window, std::string_view unit);

}  // namespace calc
