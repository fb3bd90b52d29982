// A label of one line whose type is a multiple of the desktop's and shrinks where it would not fit.
//
// It shows its text as it stands: nothing in it is a tag or an access key.
#pragma once

#include <QLabel>

namespace ui {

class FittedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit FittedLabel(QWidget* parent = nullptr);

  void setScale(double scale) { scale_ = scale; }
  void setReserve(int digits) { reserve_ = digits; }
  /// Underlines the first occurrence of the letter; what Alt with it does is somebody else's matter.
  void setAccessKey(const QString& letter) { accessKey_ = letter; }

  /// As wide as `reserve` digits, so that nothing moves when the text changes; as its text when that is 0.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  /// The largest type, from `scale` down to the least that can be read, in which the text fits.
  [[nodiscard]] QFont fittedFont() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QString shownText(const QFontMetrics& metrics) const;

  double scale_ = 1;
  int reserve_ = 0;
  QString accessKey_;
};

}  // namespace ui
