// What all windows have in common on the screen: style, German texts of the toolkit, icons that are never blank, and a
// substitute for a typeface that is not installed.
#pragma once

#include <string>
#include <vector>

class QApplication;

namespace ui {

void setUpAppearance(QApplication& application);

/// The icon of all windows. Drawing it loads every image plugin, so it comes after the first window is there.
void setProgramIcon();

/// Takes the icons that fit a light or dark palette.
void followPalette();

/// Lets the display use an installed typeface for `family` when it is none of `installed`: looking it up would cost up
/// to 200 ms with thousands of typefaces. Documents keep the name.
void substituteMissing(const std::string& family, const std::vector<std::string>& installed);

}  // namespace ui
