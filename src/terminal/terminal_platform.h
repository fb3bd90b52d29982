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
  void showModal(base::Window& window) override;
  void close(base::Window& window) override;
  void show(base::Window& window) override;
  void hide(base::Window& window) override;
  void refresh() override;
  void beep() override;
  void setHourglass(base::Hourglass hourglass) override;
  [[nodiscard]] base::DateTime now() const override;
  [[nodiscard]] int screenWidth() const override;
  [[nodiscard]] base::SystemInformation systemInformation() const override;
  [[nodiscard]] std::string systemRoot() const override;
  [[nodiscard]] std::string clipboardText() const override;
  void setClipboardText(std::string_view text) override;
  [[nodiscard]] std::optional<std::string> userSetting(std::string_view key) const override;
  void saveUserSettings(const std::vector<base::UserSetting>& settings) override;
  [[nodiscard]] base::NumberFormat numberFormat() const override;
  [[nodiscard]] std::string composed(std::string_view text) const override;
  [[nodiscard]] std::vector<std::string> fontFamilies() const override;

 private:
  std::optional<base::Message> message_;
};

}  // namespace terminal
