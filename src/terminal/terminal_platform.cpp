// The world as the terminal form sees it.
#include "terminal/terminal_platform.h"

#include "base/failure.h"
#include "qtcore/locale.h"

namespace terminal {

base::MessageAnswer TerminalPlatform::messageBox(const base::Message& message) {
  if (!message_) message_ = message;
  switch (message.buttons) {
    case base::MessageButtons::yesNo:
      return base::MessageAnswer::no;
    case base::MessageButtons::yesNoCancel:
      return base::MessageAnswer::cancel;
    case base::MessageButtons::ok:
      break;
  }
  return base::MessageAnswer::ok;
}

// No command of the terminal form opens a window; one that did would be told as a failure.
void TerminalPlatform::showModal(base::Window& /*window*/) { throw base::Failure(base::ErrorNumber::invalidCall); }

void TerminalPlatform::close(base::Window& /*window*/) {}

void TerminalPlatform::beep() {}

void TerminalPlatform::setHourglass(base::Hourglass /*hourglass*/) {}

base::NumberFormat TerminalPlatform::numberFormat() const { return qtcore::userNumberFormat(); }

std::string TerminalPlatform::composed(std::string_view text) const { return qtcore::composed(text); }

std::vector<std::string> TerminalPlatform::fontFamilies() const { return {}; }

}  // namespace terminal
