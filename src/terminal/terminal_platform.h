// The world as the terminal form sees it: no screen, no questions; a message is a failure to be told at the end.
#pragma once

#include <optional>

#include "base/platform.h"

namespace terminal {

class TerminalPlatform : public base::Platform {
 public:
  /// The first message a procedure wanted to show.
  [[nodiscard]] const std::optional<base::Message>& message() const { return message_; }

  base::MessageAnswer messageBox(const base::Message& message) override;
  void refresh() override {}
  void beep() override {}
  void setHourglass(base::Hourglass /*hourglass*/) override {}
  [[nodiscard]] base::DateTime now() const override;
  [[nodiscard]] std::optional<std::string> userSetting(std::string_view key) const override;
  [[nodiscard]] std::string pdf(const base::PrintJob& job) override;
  [[nodiscard]] base::NumberFormat numberFormat() const override;
  [[nodiscard]] std::string composed(std::string_view text) const override;

 private:
  std::optional<base::Message> message_;
};

}  // namespace terminal
