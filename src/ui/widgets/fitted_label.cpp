// Measuring and painting of a label that fits its type to its width.
#include "ui/widgets/fitted_label.h"

#include <QPainter>
#include <QStyle>
#include <QtMath>
#include <algorithm>

namespace ui {
namespace {

constexpr double kLeastScale = 0.8;  // of the desktop's type
constexpr double kStep = 0.02;

QFont scaled(QFont font, double scale) {
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * scale);
  } else {
    font.setPixelSize(qRound(font.pixelSize() * scale));
  }
  return font;
}

int widthOf(const QString& text, const QFont& font) { return qCeil(QFontMetricsF(font).horizontalAdvance(text)); }

}  // namespace

FittedLabel::FittedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize FittedLabel::sizeHint() const {
  const QFont font = scaled(this->font(), scale_);
  const int width = widthOf(reserve_ > 0 ? QString(reserve_, QLatin1Char('0')) : text(), font);
  return QSize(width, QFontMetrics(font).height()).grownBy(contentsMargins());
}

QFont FittedLabel::fittedFont() const {
  const int room = contentsRect().width();
  const auto isTooWide = [&](double scale) { return widthOf(text(), scaled(font(), scale)) > room; };
  const double least = std::min(kLeastScale, scale_);
  double scale = scale_;
  while (scale > least && isTooWide(scale)) scale = std::max(least, scale - kStep);
  return scaled(font(), scale);
}

QString FittedLabel::shownText(const QFontMetrics& metrics) const {
  QString shown = metrics.elidedText(text(), Qt::ElideRight, contentsRect().width());
  if (accessKey_.isEmpty()) return shown;
  const auto at = shown.indexOf(accessKey_, 0, Qt::CaseInsensitive);
  const auto plain = [](QString part) { return part.replace(QLatin1Char('&'), QLatin1String("&&")); };
  return at < 0 ? plain(shown) : plain(shown.left(at)) + QLatin1Char('&') + plain(shown.mid(at));
}

void FittedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(fittedFont());
  int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextSingleLine;
  if (!accessKey_.isEmpty()) {
    const bool underlines = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    flags |= underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
  }
  style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), shownText(painter.fontMetrics()),
                        foregroundRole());
}

}  // namespace ui
