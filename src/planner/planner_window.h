// The planner: two lists of appointments, the present ones and the old ones, and the fields in which one is entered.
//
// The two lists are the working copy; Termine.ini is written anew from them when the window closes and whenever one is
// taken out of them by a command. Closed while there are appointments, the window stays loaded and its timer runs.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "base/controls.h"
#include "base/date_time.h"
#include "base/platform.h"
#include "errors/reporting.h"
#include "settings/settings.h"

namespace planner {

// clang-format off
#define TESSIK_PLANNER_CONTROLS(CONTROL)                                                   \
  CONTROL(base::ComboBox, Tage)                                                            \
  CONTROL(base::ComboBox, Monate)                                                          \
  CONTROL(base::ComboBox, Jahre)                                                           \
  CONTROL(base::ComboBox, Stunden)                                                         \
  CONTROL(base::ComboBox, Minuten)                                                         \
  CONTROL(base::TextBox, TerminText)                                                       \
  CONTROL(base::Label, lblHinweis)      /* what is being edited, or what is missing */     \
  CONTROL(base::Tabs, SSTab1)                                                              \
  CONTROL(base::ListBox, Liste)         /* present appointments */                         \
  CONTROL(base::ListBox, List1)         /* old ones */                                     \
  CONTROL(base::Button, Erzeugen)                                                          \
  CONTROL(base::Button, cmdMove)                                                           \
  CONTROL(base::Button, loeschen)                                                          \
  CONTROL(base::Button, Command4)       /* clears the list */                              \
  CONTROL(base::Button, cmdPrint)                                                          \
  CONTROL(base::Button, cmdVorschau)                                                       \
  CONTROL(base::Button, cmdPDF)                                                            \
  CONTROL(base::Button, Ende)                                                              \
  CONTROL(base::MenuEntry, mnuHinzufügen)                                                  \
  CONTROL(base::MenuEntry, mnuMove)                                                        \
  CONTROL(base::MenuEntry, mnuLöschen)                                                     \
  CONTROL(base::MenuEntry, mnClearAll)                                                     \
  CONTROL(base::CheckBox, Check_Beep)                                                      \
  CONTROL(base::CheckBox, Check_Start)  /* look after the appointments at program start */ \
  CONTROL(base::Timer, Timer1)

#define TESSIK_REMINDER_CONTROLS(CONTROL) \
  CONTROL(base::Label, lblTermin)         \
  CONTROL(base::Label, lblText)           \
  CONTROL(base::Button, command1)
// clang-format on

struct PlannerWindow : base::Window {
  PlannerWindow();

  TESSIK_CONTROLS(TESSIK_PLANNER_CONTROLS)

  /// The list on top.
  [[nodiscard]] base::ListBox& shownList() { return SSTab1.current == 0 ? Liste : List1; }

  bool isRead = false;                             // the lists hold all that the file held
  std::array<std::uint64_t, 2> storedRevisions{};  // of the lists as they were read or written last
  std::string takenOut;                            // the line that is being edited, until it is entered again
  bool isAnnouncing = false;                       // a message about an appointment stands on the screen
  std::optional<base::DateTime> lastTick;
};

/// Tells that an appointment is due.
struct ReminderWindow : base::Window {
  ReminderWindow() : Window("frmMsgBox") { staysOnTop = true; }

  TESSIK_CONTROLS(TESSIK_REMINDER_CONTROLS)
};

/// All of it outlives the wiring.
struct PlannerParts {
  PlannerWindow& window;
  ReminderWindow& reminder;
  base::Picture& indicator;  // of the main window: appointments are watched
  const settings::Paths& paths;
  const std::string& reminderSound;
  base::Platform& platform;
  errors::Reporter& reporter;
};

/// What the command that moves appointments is called depends on the list it moves them from.
void followTab(PlannerWindow& window);

/// A present appointment becomes an old one. None of the present ones is selected then; of the old ones it stays the
/// same.
void moveToOld(PlannerWindow& window, int row);

}  // namespace planner
