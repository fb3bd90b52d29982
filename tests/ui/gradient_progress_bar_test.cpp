// The progress bar: its share of the range, and what it fills of the screen.
#include "ui/widgets/gradient_progress_bar.h"

#include <gtest/gtest.h>

#include <QImage>
#include <limits>

namespace ui {
namespace {

/// Of an empty bar along its middle line: how many pixels of `image` differ from it.
int filledLength(GradientProgressBar& bar) {
  QImage image(bar.size(), QImage::Format_RGB32);
  bar.render(&image);
  const QRgb empty = bar.palette().color(QPalette::Base).rgb();
  const bool lies = bar.orientation() == Qt::Horizontal;
  int filled = 0;
  for (int i = 1; i + 1 < (lies ? image.width() : image.height()); ++i) {
    const QPoint place = lies ? QPoint(i, image.height() / 2) : QPoint(image.width() / 2, i);
    if (image.pixel(place) != empty) ++filled;
  }
  return filled;
}

TEST(GradientProgressBar, FillsItsShareOfTheRange) {
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr int kMost = std::numeric_limits<int>::max();
  const struct {
    int minimum, maximum, value;
    double fraction;
  } rows[] = {
      {0, 100, 25, 0.25},         {1, 501, 1, 0}, {1, 501, 501, 1}, {-10, 10, 0, 0.5}, {0, 100, -5, 0},
      {0, 100, 500, 1},           {3, 3, 3, 1},   {3, 3, 0, 1},     {1, 0, 0, 1},      {kLeast, kMost, kMost, 1},
      {kLeast, kMost, kLeast, 0},
  };
  for (const auto& row : rows) {
    EXPECT_DOUBLE_EQ(GradientProgressBar::fillFraction(row.minimum, row.maximum, row.value), row.fraction)
        << row.minimum << " " << row.maximum << " " << row.value;
  }
}

TEST(GradientProgressBar, PaintsLyingAndStanding) {
  for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
    GradientProgressBar bar;
    bar.setOrientation(orientation);
    const QSize lying(200, 20);
    bar.resize(orientation == Qt::Horizontal ? lying : lying.transposed());
    EXPECT_EQ(filledLength(bar), 0);
    bar.setValue(50);
    EXPECT_EQ(filledLength(bar), 99);  // 100 without the frame's pixel
    bar.setValue(100);
    EXPECT_EQ(filledLength(bar), 198);
    bar.setMaximum(0);
    EXPECT_EQ(filledLength(bar), 198);
  }
}

}  // namespace
}  // namespace ui
