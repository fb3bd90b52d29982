// The dialog of the offer: who gets it, what is said about it, what of the calculation it tells, and where it goes.
//
// What is entered belongs to the user and is kept as the dialog is closed.
#pragma once

#include <string>

#include "base/controls.h"
#include "base/wiring.h"
#include "errors/reporting.h"
#include "printing/offer.h"

namespace printing {

// clang-format off
#define TESSIK_OFFER_CONTROLS(CONTROL)                                            \
  CONTROL(base::Label, lblAngebot)       /* what is offered */                    \
  CONTROL(base::Label, lblBriefkopf)     /* whose letter it is */                 \
  CONTROL(base::TextBox, txtKunde)                                                \
  CONTROL(base::TextBox, txtKommentar)                                            \
  CONTROL(base::CheckBox, chkS1)         /* price of one character */             \
  CONTROL(base::CheckBox, chkS2)         /* length of the text */                 \
  CONTROL(base::CheckBox, chkS3)         /* surcharge or discount */              \
  CONTROL(base::CheckBox, chkS4)         /* net total */                          \
  CONTROL(base::CheckBox, chkS5)         /* VAT and gross total */                \
  CONTROL(base::CheckBox, chkS6)         /* both totals in marks */               \
  CONTROL(base::CheckBox, chkS7)         /* the lettering in its own formats */   \
  CONTROL(base::Button, cmdDrucken)                                               \
  CONTROL(base::Button, cmdVorschau)                                              \
  CONTROL(base::Button, cmdPDF)                                                   \
  CONTROL(base::Button, cmdMail)                                                  \
  CONTROL(base::Button, cmdSchließen)
// clang-format on

struct OfferWindow : base::Window {
  OfferWindow() : Window("frmAngebot") {}

  TESSIK_CONTROLS(TESSIK_OFFER_CONTROLS)
};

/// All of it outlives the wiring.
struct OfferParts {
  OfferWindow& window;
  PricedLettering priced;
  const std::string& companyAddress;
  const std::string& documentFile;  // gives the PDF file its name
  base::Platform& platform;
  errors::Reporter& reporter;
};

void wireOffer(base::Wiring& wiring, const OfferParts& parts);

/// Opens the dialog with what was entered last and waits until it is closed.
void makeOffer(const OfferParts& parts);

}  // namespace printing
