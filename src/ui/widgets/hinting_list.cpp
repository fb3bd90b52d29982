// Painting of what an empty list says.
#include "ui/widgets/hinting_list.h"

#include <QPainter>

namespace ui {
namespace {

constexpr int kLeastRows = 2;

}  // namespace

QSize HintingList::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth(), kLeastRows * fontMetrics().lineSpacing() + 2 * frameWidth()};
}

void HintingList::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (model() != nullptr && model()->rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, placeholderText_);
}

}  // namespace ui
