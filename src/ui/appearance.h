// What all windows have in common on the screen: style, German texts of the toolkit, icons that are never blank, and a
// substitute for a typeface that is not installed.
#pragma once

#include <QString>
#include <string>
#include <vector>

class QApplication;

namespace ui {

void setUpAppearance(QApplication& application);

/// The icon of all windows. Drawing it loads every image plugin, so it comes when the first window is there or just
/// before a message box that precedes it; further calls do nothing.
void setProgramIcon();

/// A tool tip that shows `toolTip` as it stands, whatever in it looks like tags.
QString shownAsPlainText(const QString& toolTip);

/// Whether two names mean one typeface: "Arial [Monotype]" is "Arial" from a certain foundry.
bool isSameTypeface(const QString& one, const QString& other);

/// Takes the icons that fit a light or dark palette.
void followPalette();

/// Lets the display use an installed typeface for `family` when it is none of `installed`: looking it up would cost up
/// to 200 ms with thousands of typefaces. Documents keep the name.
void substituteMissing(const std::string& family, const std::vector<std::string>& installed);

}  // namespace ui
