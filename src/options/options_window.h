// The options dialog's controls under their own names.
#pragma once

#include "base/controls.h"

namespace options {

// clang-format off
#define TESSIK_OPTIONS_CONTROLS(CONTROL)                                             \
  /* what the calculation and the other windows go by */                             \
  CONTROL(base::TextBox, txtMwst)                                                    \
  CONTROL(base::ComboBox, cboMaßeinheit)                                             \
  CONTROL(base::TextBox, txtRGF)                                                     \
  CONTROL(base::Label, lblHinweis)           /* what a refused input lacks */        \
  CONTROL(base::OptionButton, optYes2)       /* blanks count */                      \
  CONTROL(base::OptionButton, optNo2)                                                \
  CONTROL(base::OptionButton, optYES)        /* the pocket calculator is in front */ \
  CONTROL(base::OptionButton, optNo)                                                 \
  CONTROL(base::Button, Command1)                                                    \
  CONTROL(base::Label, lblSound)                                                     \
  CONTROL(base::TextBox, txtFirmaAnschrift)                                          \
  /* the surcharges */                                                               \
  CONTROL(base::ListBox, cboAufpreis)                                                \
  CONTROL(base::ProgressBar, ProgressBar1)                                           \
  CONTROL(base::Label, Label11)                                                      \
  CONTROL(base::Label, lblStandA)            /* what is being edited */              \
  CONTROL(base::TextBox, txtEingabeAR)                                               \
  CONTROL(base::TextBox, txtToolTip)                                                 \
  CONTROL(base::OptionButton, optAPro)                                               \
  CONTROL(base::OptionButton, optADM)                                                \
  CONTROL(base::Button, cmdAHin)                                                     \
  CONTROL(base::Button, cmdAEntfernen)                                               \
  CONTROL(base::Button, cmdClearA)                                                   \
  CONTROL(base::Label, lblHinweisA)                                                  \
  CONTROL(base::MenuEntry, mnuHinzufügen)                                            \
  CONTROL(base::MenuEntry, mnuÄndern)                                                \
  CONTROL(base::MenuEntry, mnuEntfernen)                                             \
  CONTROL(base::MenuEntry, mnuClearAll)                                              \
  /* the discounts */                                                                \
  CONTROL(base::ListBox, cboRabatt)                                                  \
  CONTROL(base::ProgressBar, ProgressBar2)                                           \
  CONTROL(base::Label, Label10)                                                      \
  CONTROL(base::Label, lblStandR)                                                    \
  CONTROL(base::TextBox, txtEingabeRR)                                               \
  CONTROL(base::TextBox, txtToolTip2)                                                \
  CONTROL(base::OptionButton, optRPro)                                               \
  CONTROL(base::OptionButton, optRDM)                                                \
  CONTROL(base::Button, cmdRHin)                                                     \
  CONTROL(base::Button, cmdREntfernen)                                               \
  CONTROL(base::Button, cmdClearR)                                                   \
  CONTROL(base::Label, lblHinweisR)                                                  \
  CONTROL(base::MenuEntry, mnuHinzufügen2)                                           \
  CONTROL(base::MenuEntry, mnuÄndern2)                                               \
  CONTROL(base::MenuEntry, mnuEntfernen2)                                            \
  CONTROL(base::MenuEntry, mnuClearAll2)                                             \
  CONTROL(base::Button, cmdOK)                                                       \
  CONTROL(base::Button, cmdAbbrechen)        /* resets, does not cancel */
// clang-format on

/// What the add button does with the typed amount and remark.
enum class EditMode { adding, changing };

struct OptionsWindow : base::Window {
  OptionsWindow() : Window("frmOptions") {}

  TESSIK_CONTROLS(TESSIK_OPTIONS_CONTROLS)

  EditMode AufpreisEditModus = EditMode::adding;
  EditMode RabattEditModus = EditMode::adding;
};

}  // namespace options
