// The offer that a customer gets: letter head, customer and comment, the lettering, and what of the calculation the
// shop wants to tell.
//
// Amounts are in German form whatever the machine's locale: an offer is a German letter.
#pragma once

#include <array>
#include <string>

#include "base/date_time.h"
#include "base/platform.h"
#include "base/print_job.h"
#include "frame/main_window.h"
#include "settings/settings.h"

namespace printing {

/// What of the calculation is told, in the order of the keys "S1" to "S7".
struct OfferSwitches {
  bool pricePerCharacter = false;
  bool textLength = false;
  bool adjustment = false;  // surcharge or discount, and the price before it
  bool netTotal = true;
  bool vatAndGross = true;
  bool marks = false;
  bool ownFormats = false;  // of the lettering, which else is plain

  bool operator==(const OfferSwitches&) const = default;
};

inline constexpr std::array kOfferSwitches = {
    &OfferSwitches::pricePerCharacter, &OfferSwitches::textLength, &OfferSwitches::adjustment, &OfferSwitches::netTotal,
    &OfferSwitches::vatAndGross,       &OfferSwitches::marks,      &OfferSwitches::ownFormats,
};

/// What the person says about the offer, kept in the user's own store.
struct OfferWording {
  std::string customer;
  std::string comment;
  OfferSwitches switches;
};

/// A missing key has its default of a first start.
OfferWording storedWording(const base::Platform& platform);
void storeWording(const OfferWording& wording, base::Platform& platform);

/// A calculation that has run, and what it was made from.
struct PricedLettering {
  const frame::MainWindow& window;
  const frame::CalcResults& results;
  const settings::Rates& rates;
};

/// The whole lettering or, where something is selected, that. A total beyond all numbers is error 6.
base::PrintJob offer(const PricedLettering& priced, const OfferWording& wording, const std::string& companyAddress,
                     const base::DateTime& moment);

}  // namespace printing
