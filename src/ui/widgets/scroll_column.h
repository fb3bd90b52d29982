// A column that scrolls only on screens too small for it: elsewhere it is as wide as what stands in it.
#pragma once

#include <QScrollArea>

namespace ui {

class ScrollColumn : public QScrollArea {
  Q_OBJECT

 public:
  explicit ScrollColumn(QWidget* parent = nullptr);

  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  /// A longer amount widens the column as it would a window.
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace ui
