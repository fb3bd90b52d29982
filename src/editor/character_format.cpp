// The character format of the document.
#include "editor/character_format.h"

#include <algorithm>
#include <string>

#include "base/money.h"
#include "base/number.h"

namespace editor {
namespace {

// A text that is no item, such as a typeface that is not installed, is shown all the same.
void showIn(base::ComboBox& box, const std::string& text) {
  if (box.text == text) return;
  const auto found = std::find(box.items.begin(), box.items.end(), text);
  box.selected = found == box.items.end() ? -1 : static_cast<int>(found - box.items.begin());
  box.text = text;
}

}  // namespace

base::CharFormat startFormat() { return {}; }

void applyTypeface(const frame::MainWindow& window, base::RichText& document) {
  if (!window.cboFontSelect.text.empty()) document.changeFormat({.family = window.cboFontSelect.text});
}

void applySize(const frame::MainWindow& window, base::RichText& document) {
  const double points = base::typedAmount(window.cboFontSize.text);
  if (points > 0) document.changeFormat({.points = points});
}

void applyBold(const frame::MainWindow& window, base::RichText& document) {
  document.changeFormat({.bold = window.cmdFett.pressed});
}

void applyItalic(const frame::MainWindow& window, base::RichText& document) {
  document.changeFormat({.italic = window.cmdKursiv.pressed});
}

void applyUnderline(const frame::MainWindow& window, base::RichText& document) {
  document.changeFormat({.underline = window.cmdUnterstrichen.pressed});
}

void showFormat(frame::MainWindow& window, const base::RichText& document) {
  const base::CharFormat format = document.format();
  showIn(window.cboFontSelect, format.family);
  showIn(window.cboFontSize, base::pointsText(format.points));
  window.cmdFett.pressed = format.bold;
  window.cmdKursiv.pressed = format.italic;
  window.cmdUnterstrichen.pressed = format.underline;
}

}  // namespace editor
