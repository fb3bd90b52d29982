// The table of forms: which form draws which window.
#pragma once

#include <QWidget>
#include <string_view>

namespace ui {

/// When a window that is shown comes to the screen: a loading screen only when there is something to wait for.
enum class Appears { atOnce, whenItTakesLonger };

struct Form {
  std::string_view window;  // its name
  /// Owned by `parent` where there is one, unless it is a window on its own.
  QWidget* (*build)(QWidget* parent);
  Appears appears = Appears::atOnce;
};

/// The form of the window named `window`; an internal error when nobody draws it.
const Form& formOf(std::string_view window);

}  // namespace ui
