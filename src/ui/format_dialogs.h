// The desktop's dialogs of fonts and colours.
#pragma once

#include <optional>

#include "base/document.h"

class QWidget;

namespace ui {

/// In front of `parent`. `present` with what the person chose; what was left as it was shown stays, even where the
/// dialog knows only something like it. Leaving without a choice is a Failure (cancelled).
base::CharFormat chosenFont(const base::CharFormat& present, QWidget* parent);
/// The same for a colour; none is the automatic one.
std::optional<base::Rgb> chosenColour(std::optional<base::Rgb> present, QWidget* parent);

}  // namespace ui
