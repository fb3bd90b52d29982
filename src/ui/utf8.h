// The texts of the logic and of the toolkit, under the names that the whole screen uses.
#pragma once

#include "qtcore/utf8.h"

namespace ui {

using qtcore::inShownLines;
using qtcore::inWrappedLines;
using qtcore::toQString;
using qtcore::toUtf8;

}  // namespace ui
