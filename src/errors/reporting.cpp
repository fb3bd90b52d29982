// Showing and recording a failure.
#include "errors/reporting.h"

namespace errors {

void Reporter::report(const base::Failure& failure) {
  platform_.setHourglass(base::Hourglass::off);
  if (failure.number() == base::ErrorNumber::none || failure.number() == base::ErrorNumber::cancelled) return;
  platform_.messageBox({.text = failure.text(), .title = "Fehler", .icon = base::MessageIcon::stop});
  if (program_.directory.empty()) return;
  skipping([&] {
    writeErrorLog({.failure = failure,
                   .program = program_,
                   .moment = platform_.now(),
                   .system = platform_.systemInformation(),
                   .format = platform_.numberFormat()});
  });
}

}  // namespace errors
