// Number reading, currency and money texts, each as one table.
#include "base/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <string>

#include "base/currency.h"
#include "base/failure.h"
#include "base/money.h"

namespace {

using base::Currency;
using base::ErrorNumber;
using base::Failure;

ErrorNumber failureOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const Failure& failure) {
    return failure.number();
  }
  return ErrorNumber::none;
}

TEST(Number, LeadingNumberStopsAtTheFirstOtherCharacter) {
  struct Row {
    std::string text;
    double value;
  };
  const Row rows[] = {
      {"", 0},          {"abc", 0},       {"12.50 EUR", 12.5},
      {"  7.5 %", 7.5}, {"\t3", 3},       {"1.250.00", 1.25},
      {"1,25", 1},      {"-0.5", -0.5},   {"+4", 4},
      {"- 4", 0},       {".5", 0.5},      {"5.", 5},
      {"1e3", 1},       {"--1", 0},       {"\u00A05", 0},
      {"0x10", 0},      {"12 34", 12},    {"-", 0},
      {".", 0},         {"-.25x", -0.25}, {"000000000000000000000000000000000000001.5", 1.5},
  };
  for (const Row& row : rows) EXPECT_EQ(base::leadingNumber(row.text), row.value) << row.text;
  EXPECT_EQ(base::leadingNumber("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(failureOf([] { base::leadingNumber("1" + std::string(400, '0')); }), ErrorNumber::overflow);
  EXPECT_EQ(base::typedAmount("1,25"), 1.25);
}

TEST(Number, WholeNumbersAreWholeOrNothing) {
  EXPECT_EQ(base::wholeNumber(" 300 "), 300);
  EXPECT_EQ(base::wholeNumber("-5"), -5);
  for (const char* text : {"", " ", "abc", "1.5", "16 %", "99999999999", "+-1", "1 2"}) {
    EXPECT_EQ(base::wholeNumber(text), std::nullopt) << text;
  }
}

TEST(Number, TwoDecimalsRoundHalvesAwayFromZeroOnTheDecimalValue) {
  struct Row {
    double value;
    std::string text;
  };
  const Row rows[] = {{0, "0.00"},
                      {-0.0, "0.00"},
                      {12.075, "12.08"},
                      {-12.075, "-12.08"},
                      {-0.004, "0.00"},
                      {9.995, "10.00"},
                      {1e15, "1000000000000000.00"},
                      {1e-300, "0.00"},
                      {999999999999.995, "1000000000000.00"}};
  for (const Row& row : rows) EXPECT_EQ(base::twoDecimals(row.value, "."), row.text) << row.value;
  EXPECT_EQ(base::twoDecimals(1e22, "."), "10000000000000000000000.00");
  EXPECT_EQ(failureOf([] { base::twoDecimals(std::nan(""), ","); }), ErrorNumber::overflow);
  EXPECT_EQ(failureOf([] { base::twoDecimals(HUGE_VAL, ","); }), ErrorNumber::overflow);
}

TEST(Money, CurrencyRoundsHalvesToEvenAndFailsBeyondItsRange) {
  struct Row {
    double value;
    std::int64_t tenThousandths;
  };
  const Row rows[] = {{0.00005, 0}, {0.00035, 4}, {0.00025, 2}, {-0.00025, -2}, {205.36215, 2053622}, {1e-9, 0}};
  for (const Row& row : rows) {
    EXPECT_EQ(Currency::fromDouble(row.value).tenThousandths(), row.tenThousandths) << row.value;
  }
  constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
  const Currency most = Currency::fromTenThousandths(kMost);
  const Currency least = Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::min());
  const Currency one = Currency::fromTenThousandths(1);
  EXPECT_EQ(failureOf([&] { (void)(most + one); }), ErrorNumber::overflow);
  EXPECT_EQ(failureOf([&] { (void)(least - one); }), ErrorNumber::overflow);
  EXPECT_EQ((most - one).tenThousandths(), kMost - 1);
  for (const double value : {1e15, -1e15, HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(failureOf([value] { Currency::fromDouble(value); }), ErrorNumber::overflow) << value;
  }
}

TEST(Money, TextsShowTwoDecimalsInTheUsersForm) {
  struct Row {
    std::int64_t tenThousandths;
    std::string text;
  };
  const Row rows[] = {
      {0, "0,00 EUR"},       {50, "0,01 EUR"},
      {49, "0,00 EUR"},      {-49, "0,00 EUR"},
      {-50, "-0,01 EUR"},    {120750, "12,08 EUR"},
      {375000, "37,50 EUR"}, {std::numeric_limits<std::int64_t>::min(), "-922337203685477,58 EUR"},
  };
  for (const Row& row : rows) EXPECT_EQ(base::euroText(Currency::fromTenThousandths(row.tenThousandths), {}), row.text);
  EXPECT_EQ(base::markText(73.341, {.decimalSeparator = "."}), "73.34 DM");
  EXPECT_EQ(base::storedAmount(Currency::fromDouble(-12.5)), "-12.50");
}

}  // namespace
