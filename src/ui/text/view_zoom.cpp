// The zoom of a document's view.
#include "ui/text/view_zoom.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <array>

namespace ui {
namespace {

constexpr std::array kSteps = {25, 33, 50, 67, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300, 400, 500, 600, 700, 800};
static_assert(kSteps.front() == ViewZoom::kLeast && kSteps.back() == ViewZoom::kMost);

int scaled(int dotsPerInch, int percent) {
  constexpr int kWhole = 100;
  return (dotsPerInch * percent + kWhole / 2) / kWhole;
}

}  // namespace

int ViewZoom::Device::metric(PaintDeviceMetric metric) const {
  if (metric == PdmDpiX) return scaled(base.logicalDpiX(), percent);
  if (metric == PdmDpiY) return scaled(base.logicalDpiY(), percent);
  return QPaintDevice::metric(metric);
}

ViewZoom::ViewZoom(QTextEdit& edit) : edit_(edit), device_(*edit.viewport()) {
  edit.document()->documentLayout()->setPaintDevice(&device_);
}

ViewZoom::~ViewZoom() { edit_.document()->documentLayout()->setPaintDevice(nullptr); }

// At the top nothing is measured: while a long text is laid out for the first time, no place in it is certain.
void ViewZoom::setPercent(int percent) {
  const int wanted = std::clamp(percent, kLeast, kMost);
  if (wanted == device_.percent) return;
  QScrollBar& bar = *edit_.verticalScrollBar();
  const bool isAtTop = bar.value() == 0;
  const QTextCursor top = edit_.cursorForPosition({0, 0});
  const int y = edit_.cursorRect(top).top();
  device_.percent = wanted;
  edit_.document()->markContentsDirty(0, edit_.document()->characterCount());
  bar.setValue(isAtTop ? 0 : bar.value() + edit_.cursorRect(top).top() - y);
}

int ViewZoom::stepped(int steps) const {
  const auto last = static_cast<int>(kSteps.size()) - 1;
  const auto* const above = std::upper_bound(kSteps.begin(), kSteps.end(), percent());
  const auto* const from = std::lower_bound(kSteps.begin(), kSteps.end(), percent());
  const auto* const start = steps < 0 ? from : above - 1;
  return kSteps[static_cast<std::size_t>(std::clamp(static_cast<int>(start - kSteps.begin()) + steps, 0, last))];
}

}  // namespace ui
