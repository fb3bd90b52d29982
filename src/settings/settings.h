// The settings in memory. They start as the values that a newly created settings file has.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace settings {

/// What the calculation reads.
struct Rates {
  int vatPercent = 16;      // "Mwst", whole percent
  std::string unit = "mm";  // "Maßeinheit" of heights and lengths
  int countBlanks = 1;      // "LZ": 0 = blanks are no characters of the lettering
};

/// A list of fixed surcharges or discounts: amounts such as "10 %" or "5.00 EUR" and a remark for each.
///
/// Slots count from 1. The first `count` of them are used; an unused or emptied slot holds an empty text.
class AdjustmentList {
 public:
  static constexpr int kSlots = 105;

  int count = 1;  // 0 to kSlots
  std::array<std::string, kSlots> amounts;
  std::array<std::string, kSlots> remarks;

  /// Slot `slot` of the amounts or remarks; error 9 outside 1 to kSlots.
  [[nodiscard]] const std::string& amount(int slot) const { return amounts.at(index(slot)); }
  [[nodiscard]] const std::string& remark(int slot) const { return remarks.at(index(slot)); }
  std::string& amount(int slot) { return amounts.at(index(slot)); }
  std::string& remark(int slot) { return remarks.at(index(slot)); }
  /// The amount and, behind an arrow, the remark if there is one.
  [[nodiscard]] std::string described(int slot) const;

 private:
  static std::size_t index(int slot);
};

struct Adjustments {
  AdjustmentList surcharges;  // "Rabatte", "RabatteTip", "Index1"
  AdjustmentList discounts;   // "Rabatte2", "RabatteTip2", "Index2"
};

/// Where the data files lie.
struct Paths {
  std::string programDirectory;

  [[nodiscard]] std::string generalSettings() const;     // Ostrowerk.ini
  [[nodiscard]] std::string adjustmentSettings() const;  // Tessik.ini
  [[nodiscard]] std::string priceDatabase() const;       // Tessik.pdb
  [[nodiscard]] std::string ownWords() const;            // Woerter.txt
  [[nodiscard]] std::string appointments() const;        // Termine.ini
  [[nodiscard]] std::string manual() const;              // Anleitung.mht
};

/// Lists that are read and kept although nothing uses them yet.
struct FurtherLists {
  static constexpr int kPrices = 500;

  int indexp1 = 1;
  int indexp2 = 1;                              // 0 to kPrices
  std::array<std::string, kPrices> capHeights;  // "Versalienhöhe"
  std::array<std::string, kPrices> prices;      // "Preise2" of the sections "Einstellungen1", "Einstellungen2", …
};

/// The single values that the desktop keeps for each user, as texts under the keys of section "Prog".
struct UserKeys {
  std::string version;  // of the defaults that were written; any other than the program's means a first start
  std::string windowState = "0";
  std::string lastFile;
  std::string beeper = "False";
  std::string undoDepth = "20";  // "RGF", 1 to 99
  std::string companyAddress;    // "FA"
  std::string sync;              // kept as it is
  std::string x;                 // kept as it is
  std::string reminderSound;     // the whole path, of which "Snd" holds the beginning
};

struct Settings {
  Rates rates;
  Adjustments adjustments;
  FurtherLists further;
  int calculatorInFront = 0;  // "TVorn"
  std::string reminderSound;  // "Snd"
  UserKeys user;
};

}  // namespace settings
