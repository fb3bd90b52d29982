// What the planner shows before anything is done.
#include "planner/planner_window.h"

namespace planner {

PlannerWindow::PlannerWindow() : Window("frmTermine") {
  followTab(*this);
  lblHinweis.visible = false;
}

void followTab(PlannerWindow& window) {
  const bool showsPresent = window.SSTab1.current == 0;
  window.cmdMove.text = window.mnuMove.text = showsPresent ? "&Verschiebe zu Alte Termine" : "&Neu anlegen";
}

bool isLoaded(const PlannerWindow& window) { return window.isOpen || window.Timer1.running; }

}  // namespace planner
