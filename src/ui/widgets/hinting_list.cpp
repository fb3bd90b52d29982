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
  QPainter painter(viewport());
  frameCurrent(painter);
  if (model() != nullptr && model()->rowCount() > 0) return;
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, placeholderText_);
}

void HintingList::frameCurrent(QPainter& painter) const {
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return;
  const bool isMarked = selectionModel()->isSelected(current);
  painter.setPen(palette().color(isMarked ? QPalette::HighlightedText : QPalette::Highlight));
  painter.drawRect(visualRect(current).adjusted(0, 0, -1, -1));
}

}  // namespace ui
