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

// No command of the terminal form opens a window; one that did would be told as a failure. The same holds for whatever
// else asks for a desktop.
void TerminalPlatform::showModal(base::Window& /*window*/) { throw base::Failure(base::ErrorNumber::invalidCall); }

void TerminalPlatform::show(base::Window& /*window*/) { throw base::Failure(base::ErrorNumber::invalidCall); }

void TerminalPlatform::hide(base::Window& /*window*/) {}

void TerminalPlatform::close(base::Window& /*window*/) {}

void TerminalPlatform::refresh() {}

base::DateTime TerminalPlatform::now() const { return {}; }

int TerminalPlatform::screenWidth() const { return 0; }

base::SystemInformation TerminalPlatform::systemInformation() const { return {}; }

std::string TerminalPlatform::systemRoot() const { return {}; }

std::string TerminalPlatform::clipboardText() const { return {}; }

void TerminalPlatform::setClipboardText(std::string_view /*text*/) {}

std::optional<std::string> TerminalPlatform::userSetting(std::string_view /*key*/) const { return std::nullopt; }

void TerminalPlatform::saveUserSettings(const std::vector<base::UserSetting>& /*settings*/) {
  throw base::Failure(base::ErrorNumber::invalidCall);
}

void TerminalPlatform::beep() {}

void TerminalPlatform::setHourglass(base::Hourglass /*hourglass*/) {}

base::NumberFormat TerminalPlatform::numberFormat() const { return qtcore::userNumberFormat(); }

std::string TerminalPlatform::composed(std::string_view text) const { return qtcore::composed(text); }

std::vector<std::string> TerminalPlatform::fontFamilies() const { return {}; }

}  // namespace terminal
