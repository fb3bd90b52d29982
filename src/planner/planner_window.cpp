// The planner's window.
#include "planner/planner_window.h"

#include "planner/appointment.h"

namespace planner {

PlannerWindow::PlannerWindow() : Window("frmTermine") {
  followTab(*this);
  lblHinweis.visible = false;
}

void followTab(PlannerWindow& window) {
  const bool showsPresent = window.SSTab1.current == 0;
  window.cmdMove.text = window.mnuMove.text = showsPresent ? "&Verschiebe zu Alte Termine" : "&Neu anlegen";
}

void moveToOld(PlannerWindow& window, int row) {
  const int place = addSorted(window.List1.items, window.Liste.items[row]);
  if (place <= window.List1.current) ++window.List1.current;
  window.Liste.items.removeAt(row);
  window.Liste.current = -1;
}

}  // namespace planner
