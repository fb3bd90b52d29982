// The one interface to the world outside: what the logic asks of the desktop, the machine and the person before it.
//
// Qt implements it for the screen, the terminal form for the command line, and tests script it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls.h"
#include "base/money.h"

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

class Platform {
 public:
  virtual ~Platform() = default;

  /// Asks and waits for the answer; closing the box answers No or Cancel, whichever it has, else Ok.
  virtual MessageAnswer messageBox(const Message& message) = 0;
  /// Shows `window` and waits until it is closed.
  virtual void showModal(Window& window) = 0;
  virtual void close(Window& window) = 0;

  /// The sound of a refused action.
  virtual void beep() = 0;
  virtual void setHourglass(Hourglass hourglass) = 0;

  /// The separators of the user's locale.
  [[nodiscard]] virtual NumberFormat numberFormat() const = 0;
  /// `text` in Unicode normalization form C.
  [[nodiscard]] virtual std::string composed(std::string_view text) const = 0;
  /// The typefaces of the screen, in the order in which they are offered.
  [[nodiscard]] virtual std::vector<std::string> fontFamilies() const = 0;
};

}  // namespace base
