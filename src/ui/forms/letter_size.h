// Sizes told in letters.
#pragma once

#include <QGuiApplication>
#include <QScreen>
#include <QSize>
#include <QWidget>

namespace ui {

/// That many average letters wide and lines high, in the desktop's type.
inline QSize inLetters(const QWidget& window, int columns, int lines) {
  const QFontMetrics metrics = window.fontMetrics();
  return {columns * metrics.averageCharWidth(), lines * metrics.lineSpacing()};
}

/// The same as the first size of a window: on a small screen no larger than that, its frame included.
inline QSize inLettersOnScreen(const QWidget& window, int columns, int lines) {
  constexpr double kShareOfSmallScreen = 0.95;
  const QSize available = QGuiApplication::primaryScreen()->availableSize();
  return inLetters(window, columns, lines).boundedTo(available * kShareOfSmallScreen);
}

}  // namespace ui
