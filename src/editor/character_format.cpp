// The character format of the document.
#include "editor/character_format.h"

#include <algorithm>
#include <cmath>
#include <optional>
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

// Sizes as documents keep them: half points within what typesetting programs agree on.
double keptSize(double points) {
  constexpr double kLeast = 1;
  constexpr double kMost = 1638;
  return std::round(std::clamp(points, kLeast, kMost) * 2) / 2;
}

base::Script scriptOf(const base::ToggleButton& button, base::Script pressed) {
  return button.pressed ? pressed : base::Script::normal;
}

}  // namespace

base::CharFormat startFormat() { return {}; }

void applyTypeface(const frame::MainWindow& window, base::RichText& document) {
  if (!window.cboFontSelect.text.empty()) document.changeFormat({.family = window.cboFontSelect.text});
}

void applySize(const frame::MainWindow& window, base::RichText& document) {
  const double points = base::typedAmount(window.cboFontSize.text);
  if (points > 0) document.changeFormat({.points = keptSize(points)});
}

void applyOtherSize(const frame::MainWindow& window, base::RichText& document) {
  if (window.cboFontSize.text != base::pointsText(document.format().points)) applySize(window, document);
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

void applyStrikeOut(const frame::MainWindow& window, base::RichText& document) {
  document.changeFormat({.strikeOut = window.mnuDurchgestrichen.pressed});
}

void applySuperscript(const frame::MainWindow& window, base::RichText& document) {
  document.changeFormat({.script = scriptOf(window.mnuHochgestellt, base::Script::superscript)});
}

void applySubscript(const frame::MainWindow& window, base::RichText& document) {
  document.changeFormat({.script = scriptOf(window.mnuTiefgestellt, base::Script::subscript)});
}

void chooseFont(base::RichText& document, base::Platform& platform) {
  const base::CharFormat chosen = platform.askFont(document.format());
  document.changeFormat({.family = chosen.family,
                         .points = keptSize(chosen.points),
                         .bold = chosen.bold,
                         .italic = chosen.italic,
                         .underline = chosen.underline,
                         .strikeOut = chosen.strikeOut});
}

void chooseColour(base::RichText& document, base::Platform& platform) {
  document.changeFormat({.colour = platform.askColour(document.format().colour)});
}

void showFormat(frame::MainWindow& window, const base::RichText& document) {
  const base::CharFormat format = document.format();
  showIn(window.cboFontSelect, format.family);
  showIn(window.cboFontSize, base::pointsText(format.points));
  window.cmdFett.pressed = format.bold;
  window.cmdKursiv.pressed = format.italic;
  window.cmdUnterstrichen.pressed = format.underline;
  window.mnuDurchgestrichen.pressed = format.strikeOut;
  window.mnuHochgestellt.pressed = format.script == base::Script::superscript;
  window.mnuTiefgestellt.pressed = format.script == base::Script::subscript;
  const base::Alignment alignment = document.alignment();
  window.mnuLinks.pressed = alignment == base::Alignment::left;
  window.mnuZentriert.pressed = alignment == base::Alignment::centre;
  window.mnuRechts.pressed = alignment == base::Alignment::right;
}

}  // namespace editor
