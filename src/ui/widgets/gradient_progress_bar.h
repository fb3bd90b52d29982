// A progress bar of one calm gradient, lying or standing, with a text over it if there is one.
//
// It repaints only when something visible changes, so that it may be advanced at every step of long work.
#pragma once

#include <QString>
#include <QWidget>

class QPainter;

namespace ui {

class GradientProgressBar : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
  Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
  Q_PROPERTY(int value READ value WRITE setValue)
  Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
  Q_PROPERTY(QString text READ text WRITE setText)

 public:
  explicit GradientProgressBar(QWidget* parent = nullptr);

  [[nodiscard]] int minimum() const { return minimum_; }
  [[nodiscard]] int maximum() const { return maximum_; }
  [[nodiscard]] int value() const { return value_; }
  [[nodiscard]] Qt::Orientation orientation() const { return orientation_; }
  [[nodiscard]] QString text() const { return text_; }

  /// A minimum above the maximum takes it along, and the other way round; the value is held within.
  void setMinimum(int minimum);
  void setMaximum(int maximum);
  void setValue(int value);
  /// A standing bar fills from below and carries its text upwards.
  void setOrientation(Qt::Orientation orientation);
  void setText(const QString& text);

  /// How much of the bar is filled, 0 to 1; all of it when there is nothing between minimum and maximum.
  static double fillFraction(int minimum, int maximum, int value);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Takes the new figures and repaints if they fill another number of the screen's pixels.
  void setFigures(int minimum, int maximum, int value);
  /// Along the bar, in whole pixels of the screen.
  [[nodiscard]] int filledPixels() const;
  [[nodiscard]] QSize placed(QSize lying) const;
  void paintFill(QPainter& painter, const QRectF& bar, double filled) const;
  void paintText(QPainter& painter, const QRectF& bar, double filled) const;

  int minimum_ = 0;
  int maximum_ = 100;
  int value_ = 0;
  Qt::Orientation orientation_ = Qt::Horizontal;
  QString text_;
};

}  // namespace ui
