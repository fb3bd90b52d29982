// The text container.
#include "editor/container.h"

#include <limits>

namespace editor {

void appendToContainer(base::RichText& container, const base::Document& block) {
  const base::TextSelection place = container.selection();
  container.select({.start = std::numeric_limits<std::int64_t>::max(), .length = 0});
  container.replaceSelection(block);
  container.select(place);
}

}  // namespace editor
