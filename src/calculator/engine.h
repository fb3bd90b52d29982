// The pocket calculator's arithmetic: keys in, display out, without a window.
//
// Operations are carried out in the order in which they are typed, none binds closer than another. A key that fails
// (error 6 for a number beyond double, 13 for a display that is no number) leaves everything as it was at that moment.
// It does not know which keys can be used at present; that is the window's matter.
#pragma once

#include <cstdint>
#include <string>

namespace calculator {

/// The integer part of (number × 10^places + 0.5), divided by 10^places: halves go up, those of negative numbers too.
double Runden(double number, int places);

// The names are those of the calculator's own vocabulary, hence the capitals.
class Engine {
 public:
  explicit Engine(std::string decimalSeparator = ",");

  /// The display: a whole number that is being typed has the separator behind it.
  [[nodiscard]] const std::string& Readout() const { return readout_; }

  /// Back to the start, operands and all.
  void Cancel();
  void CancelEntry();
  void Number(int digit);
  void Decimal();
  void Percent();
  /// The display from euro into marks and back.
  void toMark();
  void toEuro();

  enum class Outcome { done, dividedByZero };
  /// `key` is '+', '-', 'X', '/' or '='. A division by zero leaves the first operand as it was.
  Outcome Operator(char key);

 private:
  // Kind of the last input: nothing, digits or separator, an operator, a leading minus, cleared, the percent key.
  enum class Input { NONE, NUMS, OPS, NEG, CE, Ops };

  void startAnew();
  void addOperand();
  void beginNegative(std::string display);
  Outcome calculate();
  [[nodiscard]] double value() const;
  void show(double value);
  void showTwoDecimals(double value);

  std::string separator_;
  std::string readout_;
  double ErsterWert = 0;           // first operand and running result
  double ZweiterWert = 0;          // second operand
  std::int16_t Operandenzahl = 0;  // entered since the last result
  bool KommaGesetzt = false;
  Input LetzteEingabe = Input::NONE;
  char OffeneOperation = ' ';
};

}  // namespace calculator
