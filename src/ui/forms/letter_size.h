// Sizes told in letters.
#pragma once

#include <QSize>
#include <QWidget>

namespace ui {

/// That many average letters wide and lines high, in the desktop's type.
inline QSize inLetters(const QWidget& window, int columns, int lines) {
  const QFontMetrics metrics = window.fontMetrics();
  return {columns * metrics.averageCharWidth(), lines * metrics.lineSpacing()};
}

}  // namespace ui
