// The one interface to the world outside: what the logic asks of the desktop, the machine and the person before it.
//
// Qt implements it for the screen, the terminal form for the command line, and tests script it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls.h"
#include "base/date_time.h"
#include "base/money.h"
#include "base/system_information.h"

namespace base {

enum class Hourglass { off, on };
enum class MessageIcon { none, information, question, exclamation, stop };
enum class MessageButtons { ok, yesNo, yesNoCancel };
enum class MessageAnswer { ok, yes, no, cancel };

struct Message {
  std::string text;
  std::string title = "Tessik";
  MessageIcon icon = MessageIcon::none;
  MessageButtons buttons = MessageButtons::ok;

  bool operator==(const Message&) const = default;
};

struct UserSetting {
  std::string key;
  std::string value;

  bool operator==(const UserSetting&) const = default;
};

class Platform {
 public:
  virtual ~Platform() = default;

  /// Asks and waits for the answer; closing the box answers No or Cancel, whichever it has, else Ok.
  virtual MessageAnswer messageBox(const Message& message) = 0;
  /// Shows `window` and waits until it is closed.
  virtual void showModal(Window& window) = 0;
  virtual void close(Window& window) = 0;
  /// Shows `window` beside the others and goes on; hide() takes it from the screen again.
  virtual void show(Window& window) = 0;
  virtual void hide(Window& window) = 0;
  /// Brings what was written to the screen in the middle of long work, without letting events in. Cheap to call often:
  /// it paints at most 60 times a second.
  virtual void refresh() = 0;

  /// The sound of a refused action.
  virtual void beep() = 0;
  virtual void setHourglass(Hourglass hourglass) = 0;

  /// Moments of the local time.
  [[nodiscard]] virtual DateTime now() const = 0;
  /// Of the screen that the program starts on, in pixels.
  [[nodiscard]] virtual int screenWidth() const = 0;
  /// Asked when an error is recorded; it may take its time.
  [[nodiscard]] virtual SystemInformation systemInformation() const = 0;

  /// The directory of the system's own files.
  [[nodiscard]] virtual std::string systemRoot() const = 0;

  /// The clipboard's text, empty when it holds none.
  [[nodiscard]] virtual std::string clipboardText() const = 0;
  virtual void setClipboardText(std::string_view text) = 0;

  /// A value of the user's own store (application Tessik, section "Prog"); nothing when the key is missing.
  [[nodiscard]] virtual std::optional<std::string> userSetting(std::string_view key) const = 0;
  /// Stores values in their order; a store that cannot be written is a Failure.
  virtual void saveUserSettings(const std::vector<UserSetting>& settings) = 0;

  /// The separators of the user's locale.
  [[nodiscard]] virtual NumberFormat numberFormat() const = 0;
  /// `text` in Unicode normalization form C.
  [[nodiscard]] virtual std::string composed(std::string_view text) const = 0;
  /// The typefaces of the screen, in the order in which they are offered.
  [[nodiscard]] virtual std::vector<std::string> fontFamilies() const = 0;
};

}  // namespace base
