// The rich-text control as the logic sees it.
#include "base/rich_text.h"

#include "base/number.h"

namespace base {

std::string pointsText(double points) {
  std::string text = twoDecimals(points, ".");
  while (text.ends_with('0')) text.pop_back();
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace base
