// The lettering calculation: reads the document and the inputs, writes every result label.
#pragma once

#include <string>
#include <string_view>

#include "base/money.h"
#include "base/rich_text.h"
#include "frame/main_window.h"
#include "settings/settings.h"

namespace calc {

inline constexpr std::string_view kCalcTag = "MAIN-Calc";

/// What a calculation reads and writes. Texts that are no numbers count as 0.
struct CalcParts {
  frame::MainWindow& window;
  const base::RichText& document;
  const settings::Rates& rates;
  frame::CalcResults& results;
  base::NumberFormat format;
};

/// The attributes of the type at the caret: "Font: Arial / Größe: 8 (S/S/S)"; F, K, U stand where S (standard) does
/// not.
std::string attributeLine(const base::CharFormat& format);

/// Shows the attributes of the type, line and position of the caret in the status line, and the piece addition while
/// there is one, for it prices the next job too.
void showStatus(const CalcParts& parts);

/// One run, under its own tag. Nothing happens when the selection is exactly one line end. A failure (error 6, a number
/// that is too large) leaves what was written before it.
void Calc(const CalcParts& parts);

}  // namespace calc
