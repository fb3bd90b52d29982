// The pocket calculator's arithmetic.
#include "calculator/engine.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <utility>

#include "base/currency.h"
#include "base/failure.h"
#include "base/number.h"
#include "base/text.h"

namespace calculator {
namespace {

constexpr int kSignificantDigits = 15;

double finite(double value) {
  if (!std::isfinite(value)) throw base::Failure(base::ErrorNumber::overflow);
  return value;
}

// What is too large and what is too small to be told from zero look alike to the reader of numbers.
double beyondRange(std::string_view number) {
  const std::string_view mantissa = number.substr(0, number.find('E'));
  const std::size_t firstDigit = mantissa.find_first_of("123456789");
  const bool isSmall = number.find("E-") != std::string_view::npos || firstDigit > mantissa.find('.');
  if (!isSmall) throw base::Failure(base::ErrorNumber::overflow);
  return 0;
}

double numberOf(std::string_view text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) return beyondRange(text);
  if (error != std::errc() || end != text.data() + text.size()) throw base::Failure(base::ErrorNumber::typeMismatch);
  return value;
}

std::string plainText(double value) {
  constexpr std::size_t kLongest = 32;
  std::array<char, kLongest> text{};
  value += 0.0;  // a negative zero shows no sign
  const auto result =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, kSignificantDigits);
  return base::replaceAll(std::string_view(text.data(), result.ptr), "e", "E");
}

}  // namespace

double Runden(double number, int places) {
  const double factor = std::pow(10.0, places);
  return std::floor(number * factor + 0.5) / factor;
}

Engine::Engine(std::string decimalSeparator) : separator_(std::move(decimalSeparator)) { startAnew(); }

void Engine::startAnew() {
  KommaGesetzt = false;
  Operandenzahl = 0;
  LetzteEingabe = Input::NONE;
  OffeneOperation = ' ';
  readout_ = "0" + separator_;
}

void Engine::Cancel() {
  ErsterWert = 0;
  ZweiterWert = 0;
  startAnew();
}

void Engine::CancelEntry() {
  readout_ = "0" + separator_;
  KommaGesetzt = false;
  LetzteEingabe = Input::CE;
}

void Engine::Number(int digit) {
  if (LetzteEingabe != Input::NUMS) {
    readout_ = separator_;
    KommaGesetzt = false;
  }
  const std::string character = std::to_string(digit);
  if (KommaGesetzt) {
    readout_ += character;
  } else {
    readout_ = readout_.substr(0, readout_.find(separator_)) + character + separator_;
  }
  if (LetzteEingabe == Input::NEG) readout_.insert(0, "-");
  LetzteEingabe = Input::NUMS;
}

void Engine::Decimal() {
  if (LetzteEingabe == Input::NEG) {
    readout_ = "-0" + separator_;
  } else if (LetzteEingabe != Input::NUMS) {
    readout_ = "0" + separator_;
  }
  KommaGesetzt = true;
  LetzteEingabe = Input::NUMS;
}

// After percent the next operator counts no operand of its own: this one stands for it.
void Engine::Percent() {
  show(value() / 100);
  LetzteEingabe = Input::Ops;
  OffeneOperation = '%';
  addOperand();
  KommaGesetzt = true;
}

void Engine::toMark() { showTwoDecimals(value() * base::kDeutscheMarkPerEuro); }

void Engine::toEuro() { showTwoDecimals(value() / base::kDeutscheMarkPerEuro); }

Engine::Outcome Engine::Operator(char key) {
  Outcome outcome = Outcome::done;
  if (LetzteEingabe == Input::NUMS) addOperand();
  if (Operandenzahl == 0) {
    if (key == '-' && LetzteEingabe != Input::NEG) beginNegative("-" + readout_);
  } else if (Operandenzahl == 1) {
    ErsterWert = value();
    if (key == '-' && LetzteEingabe != Input::NUMS && OffeneOperation != '=') beginNegative("-");
  } else if (Operandenzahl == 2) {
    outcome = calculate();
  }
  if (LetzteEingabe != Input::NEG) {
    LetzteEingabe = Input::OPS;
    OffeneOperation = key;
  }
  return outcome;
}

void Engine::addOperand() {
  if (Operandenzahl == std::numeric_limits<std::int16_t>::max()) throw base::Failure(base::ErrorNumber::overflow);
  ++Operandenzahl;
}

void Engine::beginNegative(std::string display) {
  readout_ = std::move(display);
  LetzteEingabe = Input::NEG;
}

Engine::Outcome Engine::calculate() {
  ZweiterWert = value();
  const bool dividesByZero = OffeneOperation == '/' && ZweiterWert == 0;
  switch (OffeneOperation) {
    case '+':
      ErsterWert = finite(ErsterWert + ZweiterWert);
      break;
    case '-':
      ErsterWert = finite(ErsterWert - ZweiterWert);
      break;
    case 'X':
    case '%':
      ErsterWert = finite(ErsterWert * ZweiterWert);
      break;
    case '/':
      if (!dividesByZero) ErsterWert = finite(ErsterWert / ZweiterWert);
      break;
    case '=':
      ErsterWert = ZweiterWert;
      break;
    default:
      break;
  }
  show(ErsterWert);
  Operandenzahl = 1;
  return dividesByZero ? Outcome::dividedByZero : Outcome::done;
}

double Engine::value() const { return numberOf(base::replaceAll(readout_, separator_, ".")); }

void Engine::show(double value) { readout_ = base::replaceAll(plainText(value), ".", separator_); }

void Engine::showTwoDecimals(double value) { readout_ = base::twoDecimals(value, separator_); }

}  // namespace calculator
