// The main window's controls under their own names, and the results that the calculation shares.
#pragma once

#include <cstdint>

#include "base/controls.h"
#include "base/currency.h"
#include "base/rich_text_box.h"

namespace frame {

// clang-format off
#define TESSIK_MAIN_WINDOW_CONTROLS(CONTROL)                                                   \
  /* the lettering: height, quantity, typeface */                                              \
  CONTROL(base::RichTextBox, rtfText)                                                          \
  /* the bar of find and replace, which is shown before what is on it takes the focus */       \
  CONTROL(base::Panel, pnlSuche)                                                               \
  CONTROL(base::Panel, pnlErsetzen)                                                            \
  CONTROL(base::TextBox, txtSuche)                                                             \
  CONTROL(base::Label, lblTreffer)               /* "3 von 12" */                              \
  CONTROL(base::Label, lblSuchangebot)           /* to go on at the other end of the text */   \
  CONTROL(base::Label, lblKeinTreffer)                                                         \
  CONTROL(base::Button, cmdZurück)                                                             \
  CONTROL(base::Button, cmdWeiter)                                                             \
  CONTROL(base::Button, cmdSucheZu)                                                            \
  CONTROL(base::TextBox, txtErsetzen)                                                          \
  CONTROL(base::Button, cmdErsetzen)                                                           \
  CONTROL(base::Button, cmdAlleErsetzen)                                                       \
  /* its format */                                                                             \
  CONTROL(base::ComboBox, cboFontSelect)                                                       \
  CONTROL(base::ComboBox, cboFontSize)                                                         \
  CONTROL(base::ToggleButton, cmdFett)                                                         \
  CONTROL(base::ToggleButton, cmdKursiv)                                                       \
  CONTROL(base::ToggleButton, cmdUnterstrichen)                                                \
  CONTROL(base::ToggleButton, mnuDurchgestrichen)                                              \
  CONTROL(base::ToggleButton, mnuHochgestellt)                                                 \
  CONTROL(base::ToggleButton, mnuTiefgestellt)                                                 \
  CONTROL(base::MenuEntry, mnuSchriftart)                                                      \
  CONTROL(base::MenuEntry, mnuFarbe)                                                           \
  CONTROL(base::ToggleButton, mnuLinks)          /* one of three, or none: justified */        \
  CONTROL(base::ToggleButton, mnuZentriert)                                                    \
  CONTROL(base::ToggleButton, mnuRechts)                                                       \
  CONTROL(base::Label, lblTH)                                                                  \
  CONTROL(base::ComboBox, cboBuchstabenhöhe)                                                   \
  CONTROL(base::HiddenList, List1)               /* the prices of cboBuchstabenhöhe, by position */ \
  CONTROL(base::TextBox, txtStück)                                                             \
  /* surcharges and discounts */                                                               \
  CONTROL(base::ComboBox, cboAufpreis)                                                         \
  CONTROL(base::ComboBox, cboRabatt)                                                           \
  CONTROL(base::Button, cmdAufpreisListe)                                                      \
  CONTROL(base::Button, cmdRabatteListe)                                                       \
  CONTROL(base::Label, lblcboChange1)                                                          \
  CONTROL(base::Label, lblcboChange2)                                                          \
  CONTROL(base::TextBox, txtProzent)                                                           \
  CONTROL(base::TextBox, txtRabatt)                                                            \
  CONTROL(base::TextBox, txtProzentDM)                                                         \
  CONTROL(base::TextBox, txtRabattDM)                                                          \
  /* the totals */                                                                             \
  CONTROL(base::Label, lblNettoDM)                                                             \
  CONTROL(base::Label, lblPreisNettoGesamt)                                                    \
  CONTROL(base::Label, lblMwstG1)                                                              \
  CONTROL(base::Label, lblMwstG)                                                               \
  CONTROL(base::Label, lblBruttoDM)                                                            \
  CONTROL(base::Label, lblBruttoGesamt)                                                        \
  CONTROL(base::Label, lblMarkierung)            /* while a selection prices only itself */    \
  /* the single results */                                                                     \
  CONTROL(base::Label, lblTextlenBox)                                                          \
  CONTROL(base::Label, lblMarkierungZeichen)     /* the same, beside the counts */             \
  CONTROL(base::Label, lbltexthöhe)                                                            \
  CONTROL(base::Label, lblEinzelpreisZeichen)                                                  \
  CONTROL(base::Label, lblEinzelBrutto)                                                        \
  CONTROL(base::Label, lblStückp)                                                              \
  CONTROL(base::Label, lblPreisNetto)                                                          \
  CONTROL(base::Label, lblAufpreisSolo)                                                        \
  CONTROL(base::Label, lblPNettoAuf)                                                           \
  CONTROL(base::Label, lblMwstSatz)                                                            \
  CONTROL(base::Label, lblMwstAnteil)                                                          \
  CONTROL(base::Label, lblEURO)                  /* net, in marks */                           \
  CONTROL(base::Label, lblEURObrutto)            /* gross, in marks */                         \
  /* the running sum */                                                                        \
  CONTROL(base::ListBox, cboCalc)                                                              \
  CONTROL(base::Label, lblRCalc)                                                               \
  CONTROL(base::TextBox, txtAddPerHand)                                                        \
  CONTROL(base::Button, cmdAddPerHand)                                                         \
  CONTROL(base::Button, cmdAdd)                                                                \
  CONTROL(base::Button, cmdSub)                                                                \
  CONTROL(base::Button, cmdLöschen)              /* of the sums in the price, back to the old one */ \
  CONTROL(base::Button, cmdClear)                /* adds the marked sums to the price */       \
  CONTROL(base::Button, cmdDestroy)              /* empties the list */                        \
  CONTROL(base::Menu, mnuEditCalc)                                                             \
  CONTROL(base::MenuEntry, mnuCalcAdd)                                                         \
  CONTROL(base::MenuEntry, mnuCalcSub)                                                         \
  CONTROL(base::MenuEntry, mnuOldPrice)                                                        \
  CONTROL(base::MenuEntry, mnuCalcAddToPrice)                                                  \
  CONTROL(base::MenuEntry, mnuCalcClear)                                                       \
  /* the offer note and the container it goes to */                                            \
  CONTROL(base::Button, cmdNotiz)                                                              \
  CONTROL(base::Button, cmdContainerLook)                                                      \
  CONTROL(base::MenuEntry, mnuNotiz)                                                           \
  CONTROL(base::MenuEntry, mnuContainerLook)                                                   \
  CONTROL(base::MenuEntry, mnuContainerClear)                                                  \
  /* the menus */                                                                              \
  CONTROL(base::MenuEntry, mnuNeu)                                                             \
  CONTROL(base::MenuEntry, mnuOpen)                                                            \
  CONTROL(base::MenuEntry, mnuSave)                                                            \
  CONTROL(base::Button, cmdNew)                                                                \
  CONTROL(base::Button, cmdOpen)                                                               \
  CONTROL(base::Button, cmdSave)                                                               \
  CONTROL(base::MenuEntry, mnuLastFile)                                                        \
  CONTROL(base::MenuEntry, mnuPrint)                                                           \
  CONTROL(base::MenuEntry, mnuVorschau)                                                        \
  CONTROL(base::MenuEntry, mnuPDF)                                                             \
  CONTROL(base::MenuEntry, mnuPrinterConfig)                                                   \
  CONTROL(base::MenuEntry, mnuAngebot)                                                         \
  CONTROL(base::MenuEntry, mnuExit)                                                            \
  CONTROL(base::MenuEntry, mnuUndo)                                                            \
  CONTROL(base::MenuEntry, mnuRedo)                                                            \
  CONTROL(base::MenuEntry, mnuCut)                                                             \
  CONTROL(base::MenuEntry, mnuCopy)                                                            \
  CONTROL(base::MenuEntry, mnuCopyAll)                                                         \
  CONTROL(base::MenuEntry, mnuPaste)                                                           \
  CONTROL(base::MenuEntry, mnuPastePlain)                                                      \
  CONTROL(base::MenuEntry, mnuDelete)                                                          \
  CONTROL(base::MenuEntry, mnuMarkAll)                                                         \
  CONTROL(base::MenuEntry, mnuRechtschreibung)                                                 \
  CONTROL(base::MenuEntry, mnuSuchen)                                                          \
  CONTROL(base::MenuEntry, mnuWeitersuchen)                                                    \
  CONTROL(base::MenuEntry, mnuZurücksuchen)                                                    \
  CONTROL(base::MenuEntry, mnuErsetzen)                                                        \
  CONTROL(base::MenuEntry, mnuSort)                                                            \
  CONTROL(base::MenuEntry, mnuLeerzeilen)                                                      \
  CONTROL(base::MenuEntry, mnuOptionen)                                                        \
  CONTROL(base::MenuEntry, mnuDatenbank)                                                       \
  CONTROL(base::MenuEntry, mnuVoll)                                                            \
  CONTROL(base::MenuEntry, mnuHelp)                                                            \
  CONTROL(base::MenuEntry, mnuInfo)                                                            \
  CONTROL(base::MenuEntry, mnuCalculator)                                                      \
  CONTROL(base::MenuEntry, mnuBackup)                                                          \
  CONTROL(base::MenuEntry, mnuTerminPlaner)                                                    \
  /* the status line */                                                                        \
  CONTROL(base::Label, lblZeile)                 /* format at the caret, line and column */    \
  CONTROL(base::Label, lblZusatz)                /* the piece addition, while there is one */  \
  CONTROL(base::Label, lblHinweis)               /* what the program has to tell by the way */ \
  CONTROL(base::Picture, imgTimer)               /* there are appointments */                  \
  CONTROL(base::Timer, tmrLoad)                                                                \
  CONTROL(base::Timer, tmrSicherung)             /* looks whether the recovery copy is behind */ \
  CONTROL(base::Timer, tmrSuche)                 /* looks whether the hits are, while their bar is open */
// clang-format on

/// The colours of the totals, which stand on black.
inline constexpr base::Rgb kNegativeTotal = 0xFF0000;
inline constexpr base::Rgb kPositiveTotal = 0x00C000;

struct MainWindow : base::Window {
  MainWindow();

  TESSIK_CONTROLS(TESSIK_MAIN_WINDOW_CONTROLS)
};

/// What the calculation leaves behind for the running sum, the offer note and the printout.
// The names are those of the program's own vocabulary, hence the capitals.
struct CalcResults {
  std::int32_t TextLength = 0;            // priced characters
  base::Currency NetPrice;                // of the whole order, before surcharges and discounts
  base::Currency NetTotal;                // after them
  base::Currency SurchargeBalance;        // all surcharges minus all discounts
  std::int16_t SelectedHeightIndex = -1;  // cap height of the last run
  base::Currency pieceAddition;           // set by the running sum, added to the price of one piece
};

}  // namespace frame
