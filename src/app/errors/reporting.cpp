// Showing a failure.
#include "app/errors/reporting.h"

namespace app::errors {

void Reporter::report(const base::Failure& failure) {
  platform_.setHourglass(base::Hourglass::off);
  if (failure.number() == base::ErrorNumber::none || failure.number() == base::ErrorNumber::cancelled) return;
  platform_.messageBox({.text = failure.text(), .title = "Fehler", .icon = base::MessageIcon::stop});
}

}  // namespace app::errors
