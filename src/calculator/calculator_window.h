// The pocket calculator: a window beside the others, worked by its keys or the keyboard.
#pragma once

#include "base/controls.h"
#include "base/platform.h"
#include "base/wiring.h"
#include "calculator/engine.h"
#include "errors/reporting.h"

namespace calculator {

// clang-format off
#define TESSIK_CALCULATOR_CONTROLS(CONTROL) \
  CONTROL(base::Label, Readout)             \
  CONTROL(base::Label, lblWährung)          \
  CONTROL(base::Button, Number0)            \
  CONTROL(base::Button, Number1)            \
  CONTROL(base::Button, Number2)            \
  CONTROL(base::Button, Number3)            \
  CONTROL(base::Button, Number4)            \
  CONTROL(base::Button, Number5)            \
  CONTROL(base::Button, Number6)            \
  CONTROL(base::Button, Number7)            \
  CONTROL(base::Button, Number8)            \
  CONTROL(base::Button, Number9)            \
  CONTROL(base::Button, OperatorPlus)       \
  CONTROL(base::Button, OperatorMinus)      \
  CONTROL(base::Button, OperatorX)          \
  CONTROL(base::Button, OperatorDurch)      \
  CONTROL(base::Button, OperatorGleich)     \
  CONTROL(base::Button, Decimal)            \
  CONTROL(base::Button, Percent)            \
  CONTROL(base::Button, Cancel)             \
  CONTROL(base::Button, CancelEntry)        \
  CONTROL(base::Button, cmdDM)              \
  CONTROL(base::Button, cmdEURO)
// clang-format on

struct CalculatorWindow : base::Window {
  CalculatorWindow() : Window("frmCalc") {}

  TESSIK_CONTROLS(TESSIK_CALCULATOR_CONTROLS)

  Engine engine;
};

/// What the calculator works with; all of it outlives the wiring.
struct CalculatorParts {
  CalculatorWindow& window;
  const int& inFront;  // the setting: 1 = above all other windows
  base::Platform& platform;
  errors::Reporter& reporter;
};

void wireCalculator(base::Wiring& wiring, const CalculatorParts& parts);

/// Shows the calculator as it is at the start; one that is open already comes to the front as it stands.
void openCalculator(const CalculatorParts& parts);

/// Keeps the calculator above all other windows, or no more, as the setting says; to be called when that has changed.
void followSetting(const CalculatorParts& parts);

}  // namespace calculator
