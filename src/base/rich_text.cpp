// The rich-text control as the logic sees it.
#include "base/rich_text.h"

#include "base/number.h"

namespace base {

FormatChange changeTo(const CharFormat& format) {
  return {format.family,    format.points,    format.bold,   format.italic,
          format.underline, format.strikeOut, format.script, format.colour};
}

CharFormat changed(CharFormat format, const FormatChange& change) {
  format.family = change.family.value_or(format.family);
  format.points = change.points.value_or(format.points);
  format.bold = change.bold.value_or(format.bold);
  format.italic = change.italic.value_or(format.italic);
  format.underline = change.underline.value_or(format.underline);
  format.strikeOut = change.strikeOut.value_or(format.strikeOut);
  format.script = change.script.value_or(format.script);
  format.colour = change.colour.value_or(format.colour);
  return format;
}

std::string pointsText(double points) {
  std::string text = twoDecimals(points, ".");
  while (text.ends_with('0')) text.pop_back();
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace base
