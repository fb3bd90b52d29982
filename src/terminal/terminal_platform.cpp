// The world as the terminal form sees it.
#include "terminal/terminal_platform.h"

#include "qtcore/clock.h"
#include "qtcore/locale.h"
#include "qtcore/user_settings.h"
#include "qttext/pdf.h"

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

base::DateTime TerminalPlatform::now() const { return qtcore::now(); }

std::optional<std::string> TerminalPlatform::userSetting(std::string_view key) const {
  return qtcore::storedUserSetting(key);
}

std::string TerminalPlatform::pdf(const base::PrintJob& job) { return qttext::pdfWithoutScreen(job); }

base::NumberFormat TerminalPlatform::numberFormat() const { return qtcore::userNumberFormat(); }

std::string TerminalPlatform::composed(std::string_view text) const { return qtcore::composed(text); }

}  // namespace terminal
