// The pocket calculator's keys.
#include "calculator/calculator_window.h"

#include <array>
#include <string>
#include <string_view>

namespace calculator {
namespace {

using base::Event;

constexpr char32_t kEnter = 13;
constexpr char32_t kEscape = 27;

constexpr std::array kNumbers = {&CalculatorWindow::Number0, &CalculatorWindow::Number1, &CalculatorWindow::Number2,
                                 &CalculatorWindow::Number3, &CalculatorWindow::Number4, &CalculatorWindow::Number5,
                                 &CalculatorWindow::Number6, &CalculatorWindow::Number7, &CalculatorWindow::Number8,
                                 &CalculatorWindow::Number9};

struct OperatorKey {
  base::Button CalculatorWindow::*button;
  char caption;
};

constexpr std::array kOperators = {
    OperatorKey{&CalculatorWindow::OperatorPlus, '+'}, OperatorKey{&CalculatorWindow::OperatorMinus, '-'},
    OperatorKey{&CalculatorWindow::OperatorX, 'X'}, OperatorKey{&CalculatorWindow::OperatorDurch, '/'},
    OperatorKey{&CalculatorWindow::OperatorGleich, '='}};

enum class Money { euro, mark };

// Only the other currency can be converted into.
void showCurrency(CalculatorWindow& window, Money shown) {
  window.lblWährung.text = shown == Money::euro ? "Währung: € / EUR" : "Währung: DM";
  window.cmdDM.enabled = shown == Money::euro;
  window.cmdEURO.enabled = shown == Money::mark;
}

// A key under its tag; the display shows what has become of it, also where it failed.
template <typename Key>
void press(const CalculatorParts& parts, std::string_view tag, Key&& key) {
  errors::reporting(parts.reporter, tag, [&] {
    CalculatorWindow& window = parts.window;
    const auto show = [&window] { window.Readout.text = window.Readout.toolTip = window.engine.Readout(); };
    try {
      key(window);
    } catch (const base::Failure&) {
      show();
      throw;
    }
    show();
  });
}

void pressNumber(const CalculatorParts& parts, int digit) {
  press(parts, "CALC-Number-Click", [digit](CalculatorWindow& window) { window.engine.Number(digit); });
}

void pressDecimal(const CalculatorParts& parts) {
  press(parts, "CALC-Decimal-Click", [](CalculatorWindow& window) { window.engine.Decimal(); });
}

void pressOperator(const CalculatorParts& parts, char caption) {
  Engine::Outcome outcome = Engine::Outcome::done;
  press(parts, "CALC-Operator-Click", [&](CalculatorWindow& window) { outcome = window.engine.Operator(caption); });
  if (outcome == Engine::Outcome::done) return;
  errors::reporting(parts.reporter, "CALC-Operator-Click", [&parts] {
    parts.platform.messageBox(
        {.text = "Division durch Null ist nicht möglich", .title = "Rechner", .icon = base::MessageIcon::exclamation});
  });
}

void pressPercent(const CalculatorParts& parts) {
  press(parts, "CALC-Percent-Click", [](CalculatorWindow& window) { window.engine.Percent(); });
}

void pressCancelEntry(const CalculatorParts& parts) {
  press(parts, "CALC-CancelEntry-Click", [](CalculatorWindow& window) {
    window.engine.CancelEntry();
    showCurrency(window, Money::euro);
  });
}

void pressCancel(const CalculatorParts& parts) {
  press(parts, "CALC-Cancel-Click", [&parts](CalculatorWindow& window) {
    followSetting(parts);
    window.engine.Cancel();
    showCurrency(window, Money::euro);
  });
}

void pressDM(const CalculatorParts& parts) {
  press(parts, "CALC-cmdDM-Click", [](CalculatorWindow& window) {
    window.engine.toMark();
    showCurrency(window, Money::mark);
  });
}

void pressEURO(const CalculatorParts& parts) {
  press(parts, "CALC-cmdEURO-Click", [](CalculatorWindow& window) {
    window.engine.toEuro();
    showCurrency(window, Money::euro);
  });
}

// The letter does no more than the key on the screen could.
void typeEURO(const CalculatorParts& parts) {
  if (parts.window.cmdEURO.enabled) return pressEURO(parts);
  parts.platform.beep();
}

// True when the key means something here. "D" is the euro key and "d" none, as its users know it.
bool typeKey(const CalculatorParts& parts, char32_t key) {
  if (key >= U'0' && key <= U'9') return pressNumber(parts, static_cast<int>(key - U'0')), true;
  switch (key) {
    case U'%':
      return pressPercent(parts), true;
    case U'C':
    case U'c':
      return pressCancel(parts), true;
    case U'*':
    case U'x':
    case U'X':
      return pressOperator(parts, 'X'), true;
    case U'/':
    case U'+':
    case U'-':
    case U'=':
      return pressOperator(parts, static_cast<char>(key)), true;
    case kEnter:
      return pressOperator(parts, '='), true;
    case U'E':
    case U'e':
    case U'D':
      return typeEURO(parts), true;
    case U'.':
    case U',':
      return pressDecimal(parts), true;
    case kEscape:
      return parts.platform.close(parts.window), true;
    default:
      return false;
  }
}

}  // namespace

void wireCalculator(base::Wiring& wiring, const CalculatorParts& parts) {
  CalculatorWindow& window = parts.window;
  for (std::size_t digit = 0; digit < kNumbers.size(); ++digit) {
    wiring.on(window.*kNumbers.at(digit), Event::click,
              [parts, digit] { pressNumber(parts, static_cast<int>(digit)); });
  }
  for (const OperatorKey& key : kOperators) {
    wiring.on(window.*key.button, Event::click, [parts, caption = key.caption] { pressOperator(parts, caption); });
  }
  wiring.on(window.Decimal, Event::click, [parts] { pressDecimal(parts); });
  wiring.on(window.Percent, Event::click, [parts] { pressPercent(parts); });
  wiring.on(window.Cancel, Event::click, [parts] { pressCancel(parts); });
  wiring.on(window.CancelEntry, Event::click, [parts] { pressCancelEntry(parts); });
  wiring.on(window.cmdDM, Event::click, [parts] { pressDM(parts); });
  wiring.on(window.cmdEURO, Event::click, [parts] { pressEURO(parts); });
  wiring.onKey(window, [parts](char32_t key) {
    bool isUsed = false;
    errors::reporting(parts.reporter, "CALC-Form-KeyPress", [&] { isUsed = typeKey(parts, key); });
    return isUsed;
  });
}

void openCalculator(const CalculatorParts& parts) {
  if (!parts.window.isOpen) {
    press(parts, "CALC-Form-Load", [&parts](CalculatorWindow& window) {
      followSetting(parts);
      window.engine = Engine(parts.platform.numberFormat().decimalSeparator);
      showCurrency(window, Money::euro);
    });
    parts.window.Decimal.text = parts.platform.numberFormat().decimalSeparator;
  }
  parts.platform.show(parts.window);
}

void followSetting(const CalculatorParts& parts) { parts.window.staysOnTop = parts.inFront == 1; }

}  // namespace calculator
