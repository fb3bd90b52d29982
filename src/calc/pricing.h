// The arithmetic of an order: functions of values, with the places where they round to currency.
//
// Products are doubles; a conversion to currency rounds to four decimals, halves to even. Percentages are always taken
// of the net price, never of a total that another surcharge or discount has changed. Whatever leaves the range of
// currency, or is not finite where it is shown, is error 6.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/currency.h"

namespace calc {

/// The price of all pieces before surcharges and discounts. `pieceAddition` is added to the price of one piece.
base::Currency netPrice(double pricePerCharacter, std::int64_t characters, double quantity,
                        base::Currency pieceAddition);

base::Currency piecePrice(double pricePerCharacter, std::int64_t characters, base::Currency pieceAddition);

/// What an entry of a surcharge or discount list comes to: "… %" that percentage of `net`, "… EUR" that amount once for
/// the order, any other text nothing.
base::Currency listTerm(std::string_view entry, base::Currency net);

bool isPercentage(std::string_view entry);
bool isFixedAmount(std::string_view entry);

double grossTotal(base::Currency netTotal, int vatPercent);
double vatAmount(base::Currency netTotal, int vatPercent);
double grossPerCharacter(double pricePerCharacter, int vatPercent);

/// The mark value of the net total as it is shown, that is rounded to cents first.
base::Currency markNet(base::Currency netTotal);
base::Currency markGross(base::Currency markNetTotal, int vatPercent);

/// The amount that `percent` of `net` comes to.
double amountOfPercentage(base::Currency net, double percent);
/// The percentage of `net` that `amount` comes to; error 11 when `net` is 0.
double percentageOfAmount(base::Currency net, double amount);

}  // namespace calc
