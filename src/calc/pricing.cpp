// The arithmetic of an order.
#include "calc/pricing.h"

#include "base/failure.h"
#include "base/money.h"
#include "base/number.h"

namespace calc {

using base::Currency;

Currency netPrice(double pricePerCharacter, std::int64_t characters, double quantity, Currency pieceAddition) {
  const double lettering = pricePerCharacter * static_cast<double>(characters);
  if (pieceAddition == Currency()) return Currency::fromDouble(lettering * quantity);
  const Currency piece = Currency::fromDouble(lettering) + pieceAddition;
  return Currency::fromDouble(piece.toDouble() * quantity);
}

Currency piecePrice(double pricePerCharacter, std::int64_t characters, Currency pieceAddition) {
  return Currency::fromDouble(static_cast<double>(characters) * pricePerCharacter) + pieceAddition;
}

bool isPercentage(std::string_view entry) { return entry.ends_with('%'); }

bool isFixedAmount(std::string_view entry) { return entry.ends_with("EUR"); }

Currency listTerm(std::string_view entry, Currency net) {
  if (isPercentage(entry)) return Currency::fromDouble(net.toDouble() * base::leadingNumber(entry) / 100);
  if (isFixedAmount(entry)) return Currency::fromDouble(base::leadingNumber(entry));
  return {};
}

double grossTotal(Currency netTotal, int vatPercent) {
  return netTotal.toDouble() + netTotal.toDouble() * vatPercent / 100;
}

double vatAmount(Currency netTotal, int vatPercent) { return grossTotal(netTotal, vatPercent) - netTotal.toDouble(); }

double grossPerCharacter(double pricePerCharacter, int vatPercent) {
  return vatPercent * pricePerCharacter / 100 + pricePerCharacter;
}

Currency markNet(Currency netTotal) {
  const double shown = base::leadingNumber(base::storedAmount(netTotal));
  return Currency::fromDouble(shown * base::kDeutscheMarkPerEuro);
}

Currency markGross(Currency markNetTotal, int vatPercent) {
  return Currency::fromDouble(markNetTotal.toDouble() * (vatPercent / 100.0 + 1));
}

double amountOfPercentage(Currency net, double percent) { return net.toDouble() * percent / 100; }

double percentageOfAmount(Currency net, double amount) {
  if (net == Currency())
    throw base::Failure(
        base::ErrorNumber::divisionByZero,
        "Bitte zuerst eine Texthöhe mit Preis und eine Stückzahl ab 1 angeben: Solange der Nettopreis 0 "
        "ist, gibt es von ihm keinen Prozentsatz. (Division durch Null)");
  return (net.toDouble() + amount) * 100 / net.toDouble() - 100;
}

}  // namespace calc
