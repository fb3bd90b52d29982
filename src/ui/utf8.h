// The texts of the logic and of the toolkit, under the names that the whole screen uses.
#pragma once

#include "qtcore/utf8.h"

namespace ui {

// NOLINTBEGIN(misc-unused-using-decls): used by whoever includes this
using qtcore::inShownLines;
using qtcore::inWrappedLines;
using qtcore::toQString;
using qtcore::toUtf8;
// NOLINTEND(misc-unused-using-decls)

}  // namespace ui
