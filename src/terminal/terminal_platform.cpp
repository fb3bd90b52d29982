// The world as the terminal form sees it.
#include "terminal/terminal_platform.h"

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

base::NumberFormat TerminalPlatform::numberFormat() const { return qtcore::userNumberFormat(); }

std::string TerminalPlatform::composed(std::string_view text) const { return qtcore::composed(text); }

}  // namespace terminal
