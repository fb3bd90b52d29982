// The progress bar: its figures, what it fills of the screen, and when it paints.
#include "ui/gradient_progress_bar.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QPaintEvent>
#include <QTest>
#include <limits>

namespace ui {
namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr QSize kLying(200, 20);

class CountingBar : public GradientProgressBar {
 public:
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++paints;
    GradientProgressBar::paintEvent(event);
  }
};

QImage painted(GradientProgressBar& bar, qreal ratio = 1) {
  QImage image(bar.size() * ratio, QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  bar.render(&image);
  return image;
}

/// Of an empty bar along its middle line: how many pixels of `image` differ from it.
int filledLength(GradientProgressBar& bar) {
  const QImage image = painted(bar);
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

TEST(GradientProgressBar, KeepsItsFiguresInOrder) {
  GradientProgressBar bar;
  bar.setProperty("minimum", 200);
  bar.setProperty("maximum", 300);
  EXPECT_EQ(bar.value(), 200);
  bar.setProperty("value", 1000);
  EXPECT_EQ(bar.value(), 300);
  bar.setProperty("maximum", 0);
  EXPECT_EQ(bar.minimum(), 0);
  EXPECT_EQ(bar.value(), 0);
}

TEST(GradientProgressBar, PaintsLyingAndStanding) {
  for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
    GradientProgressBar bar;
    bar.setOrientation(orientation);
    bar.resize(orientation == Qt::Horizontal ? kLying : kLying.transposed());
    EXPECT_EQ(filledLength(bar), 0);
    bar.setValue(50);
    EXPECT_EQ(filledLength(bar), 99);  // 100 without the frame's pixel
    bar.setValue(100);
    EXPECT_EQ(filledLength(bar), 198);
    bar.setMaximum(0);
    EXPECT_EQ(filledLength(bar), 198);
  }
}

TEST(GradientProgressBar, StandsOnItsFootAndChangesItsColourOnTheWay) {
  GradientProgressBar bar;
  bar.setOrientation(Qt::Vertical);
  bar.resize(kLying.transposed());
  bar.setValue(50);
  const QImage half = painted(bar);
  EXPECT_EQ(half.pixel(10, 99), bar.palette().color(QPalette::Base).rgb());
  EXPECT_NE(half.pixel(10, 100), bar.palette().color(QPalette::Base).rgb());
  EXPECT_NE(half.pixel(10, 195), half.pixel(10, 105));
  EXPECT_GT(bar.sizeHint().height(), bar.sizeHint().width());
  EXPECT_EQ(bar.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

TEST(GradientProgressBar, ShowsItsTextOverBothParts) {
  GradientProgressBar bar;
  bar.resize(kLying);
  bar.setValue(50);
  const QImage bare = painted(bar);
  bar.setProperty("text", "MMMMMMMM");
  const QImage labelled = painted(bar);
  const QRect left(60, 4, 38, 12);
  const QRect right(102, 4, 38, 12);
  EXPECT_NE(labelled.copy(left), bare.copy(left));
  EXPECT_NE(labelled.copy(right), bare.copy(right));
}

TEST(GradientProgressBar, PaintsOnlyWhatChangesOnTheScreen) {
  CountingBar bar;
  bar.resize(kLying);
  bar.setMaximum(32'000);
  bar.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
  QCoreApplication::processEvents();
  const auto paintsOf = [&](auto change) {
    const int before = bar.paints;
    change();
    QCoreApplication::processEvents();
    return bar.paints - before;
  };
  EXPECT_EQ(paintsOf([&] { bar.setValue(16'000); }), 1);
  EXPECT_EQ(paintsOf([&] { bar.setValue(16'000); }), 0);
  EXPECT_EQ(paintsOf([&] { bar.setValue(16'001); }), 0);
  EXPECT_EQ(paintsOf([&] { bar.setText("50 %"); }), 1);
  EXPECT_EQ(paintsOf([&] { bar.setText("50 %"); }), 0);
  EXPECT_EQ(paintsOf([&] { bar.setOrientation(Qt::Horizontal); }), 0);
}

}  // namespace
}  // namespace ui
