// Painting of the progress bar, always lying: a standing one is turned.
#include "ui/widgets/gradient_progress_bar.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace ui {
namespace {

struct Gradient {
  QColor start;
  QColor end;
};

/// From the highlight of the desktop to a green as bright and as calm as it.
Gradient gradientOf(const QPalette& palette) {
  constexpr int kGreen = 140;           // degrees of hue
  constexpr int kLeastSaturation = 80;  // of 255: a grey highlight shall not make a grey green
  constexpr int kMostSaturation = 170;
  const QColor start = palette.color(QPalette::Highlight);
  const int saturation = std::clamp(start.hslSaturation(), kLeastSaturation, kMostSaturation);
  return {start, QColor::fromHsl(kGreen, saturation, start.lightness())};
}

/// Relative luminance as WCAG 2 defines it.
double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// Black or white, whichever stands out more where it stands out least.
QColor inkOn(const Gradient& gradient) {
  const auto [darkest, lightest] = std::minmax({luminance(gradient.start), luminance(gradient.end)});
  const double contrastOfBlack = (darkest + 0.05) / 0.05;
  const double contrastOfWhite = 1.05 / (lightest + 0.05);
  return contrastOfBlack > contrastOfWhite ? Qt::black : Qt::white;
}

QPainterPath outlineOf(const QRectF& bar) {
  constexpr qreal kRounding = 3;
  QPainterPath outline;
  outline.addRoundedRect(bar, kRounding, kRounding);
  return outline;
}

}  // namespace

GradientProgressBar::GradientProgressBar(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

double GradientProgressBar::fillFraction(int minimum, int maximum, int value) {
  if (minimum >= maximum) return 1;
  const double range = static_cast<double>(maximum) - minimum;
  return (static_cast<double>(std::clamp(value, minimum, maximum)) - minimum) / range;
}

void GradientProgressBar::setMinimum(int minimum) { setFigures(minimum, std::max(minimum, maximum_), value_); }

void GradientProgressBar::setMaximum(int maximum) { setFigures(std::min(minimum_, maximum), maximum, value_); }

void GradientProgressBar::setValue(int value) { setFigures(minimum_, maximum_, value); }

void GradientProgressBar::setFigures(int minimum, int maximum, int value) {
  const int before = filledPixels();
  minimum_ = minimum;
  maximum_ = maximum;
  value_ = std::clamp(value, minimum, maximum);
  if (filledPixels() != before) update();
}

void GradientProgressBar::setOrientation(Qt::Orientation orientation) {
  if (orientation == orientation_) return;
  orientation_ = orientation;
  setSizePolicy(sizePolicy().transposed());
  updateGeometry();
  update();
}

void GradientProgressBar::setText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  updateGeometry();
  update();
}

QSize GradientProgressBar::placed(QSize lying) const {
  return orientation_ == Qt::Horizontal ? lying : lying.transposed();
}

QSize GradientProgressBar::sizeHint() const {
  constexpr int kLength = 160;
  constexpr int kAround = 8;
  const QFontMetrics metrics = fontMetrics();
  return placed({std::max(kLength, metrics.horizontalAdvance(text_) + 2 * kAround), metrics.height() + kAround});
}

QSize GradientProgressBar::minimumSizeHint() const {
  constexpr int kLength = 40;
  constexpr int kThickness = 6;
  return placed({kLength, text_.isEmpty() ? kThickness : fontMetrics().height()});
}

int GradientProgressBar::filledPixels() const {
  const double length = placed(size()).width() * devicePixelRatioF();
  return static_cast<int>(std::lround(fillFraction(minimum_, maximum_, value_) * length));
}

void GradientProgressBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (orientation_ == Qt::Vertical) {
    painter.translate(0, height());
    painter.rotate(-90);
  }
  const QRectF bar(QPointF(), QSizeF(placed(size())));
  const double pixel = 1 / devicePixelRatioF();
  const double filled = filledPixels() * pixel;

  painter.fillPath(outlineOf(bar), palette().color(QPalette::Base));
  paintFill(painter, bar, filled);
  QColor frame = palette().color(QPalette::WindowText);
  frame.setAlphaF(0.35F);
  // A line lies on whole pixels of the screen when its middle lies half a pixel inside.
  painter.strokePath(outlineOf(bar.adjusted(pixel / 2, pixel / 2, -pixel / 2, -pixel / 2)), QPen(frame, pixel));
  paintText(painter, bar, filled);
}

void GradientProgressBar::paintFill(QPainter& painter, const QRectF& bar, double filled) const {
  const Gradient colours = gradientOf(palette());
  QLinearGradient gradient(bar.topLeft(), bar.topRight());
  gradient.setColorAt(0, colours.start);
  gradient.setColorAt(1, colours.end);
  painter.save();
  painter.setClipRect(QRectF(bar.left(), bar.top(), filled, bar.height()));
  painter.fillPath(outlineOf(bar), gradient);
  painter.restore();
}

// Where the fill ends in the middle of a letter, each side of it has its own colour.
void GradientProgressBar::paintText(QPainter& painter, const QRectF& bar, double filled) const {
  if (text_.isEmpty()) return;
  const auto write = [&](const QRectF& part, const QColor& ink) {
    painter.setClipRect(part);
    painter.setPen(ink);
    painter.drawText(bar, Qt::AlignCenter | Qt::TextSingleLine, text_);
  };
  painter.save();
  write(QRectF(bar.left(), bar.top(), filled, bar.height()), inkOn(gradientOf(palette())));
  write(bar.adjusted(filled, 0, 0, 0), palette().color(QPalette::Text));
  painter.restore();
}

}  // namespace ui
