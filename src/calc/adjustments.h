// Surcharges and discounts: the two lists to choose from and the four boxes to type into.
//
// The percentage box and the amount box of one kind are kept in step: typing in one recomputes the other from the net
// price of the last calculation.
#pragma once

#include <optional>
#include <string_view>

#include "base/controls.h"
#include "base/currency.h"
#include "frame/main_window.h"
#include "settings/settings.h"

namespace calc {

inline constexpr std::string_view kNoAdjustment = "0.00 EUR";
/// The same in the lists that show remarks.
inline constexpr std::string_view kFixedEntry = "0.00 EUR -> FEST";

/// Digits, "." and "," (which becomes "."); everything else is refused.
std::optional<char32_t> amountKey(char32_t key);
/// Digits only: a quantity is a whole number.
std::optional<char32_t> quantityKey(char32_t key);
/// As amountKey(), and the minus sign: an amount added by hand may be one to take off.
std::optional<char32_t> signedAmountKey(char32_t key);

/// Fills a combo box with "0.00 EUR" and the used entries of its list, empty ones included.
void fillAdjustments(base::ComboBox& box, const settings::AdjustmentList& list);

/// Fills both combo boxes anew. What was chosen stays chosen, at its place or wherever it first stands now, else there
/// is no adjustment; the order labels stay.
void refillAdjustments(frame::MainWindow& window, const settings::Adjustments& adjustments);

/// What follows the choice of a surcharge or discount: the order labels and the tool tip. Both tool tips take the
/// remarks of the surcharges.
void surchargeChosen(frame::MainWindow& window, const settings::AdjustmentList& surcharges);
void discountChosen(frame::MainWindow& window, const settings::AdjustmentList& surcharges);

/// Recomputes the amount box from its percentage box; an emptied percentage box becomes "0.00".
void percentageTyped(base::TextBox& percentage, base::TextBox& amount, base::Currency net);
/// Recomputes the percentage box from its amount box; an emptied amount box becomes "0.00". Error 11 at a net price of
/// 0.
void amountTyped(base::TextBox& amount, base::TextBox& percentage, base::Currency net);

}  // namespace calc
