// A column that scrolls only on screens too small for it.
#include "ui/widgets/scroll_column.h"

#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace ui {
namespace {

constexpr int kLeastLines = 6;
constexpr double kShareOfScreen = 0.8;

}  // namespace

ScrollColumn::ScrollColumn(QWidget* parent) : QScrollArea(parent) { setWidgetResizable(true); }

QSize ScrollColumn::minimumSizeHint() const {
  if (widget() == nullptr) return QScrollArea::minimumSizeHint();
  const int whole = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
  return {std::min(whole, static_cast<int>(screen()->availableSize().width() * kShareOfScreen)),
          kLeastLines * fontMetrics().lineSpacing()};
}

bool ScrollColumn::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace ui
