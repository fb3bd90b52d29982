// The character format of the document.
#include "editor/character_format.h"

#include <algorithm>

namespace editor {

base::CharFormat startFormat() { return {.family = "Arial", .points = 24}; }

void chooseTypeface(const app::frame::MainWindow& window, base::RichText& document) {
  if (window.cboFontSelect.text.empty()) return;
  base::CharFormat format = document.format();
  format.family = window.cboFontSelect.text;
  document.setFormat(format);
}

void showFormat(app::frame::MainWindow& window, const base::RichText& document) {
  const std::string family = document.format().family;
  base::ComboBox& box = window.cboFontSelect;
  if (box.text == family) return;
  const auto found = std::find(box.items.begin(), box.items.end(), family);
  box.selected = found == box.items.end() ? -1 : static_cast<int>(found - box.items.begin());
  box.text = family;  // also of a typeface that is not installed
}

}  // namespace editor
