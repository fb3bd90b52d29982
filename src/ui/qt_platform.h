// The world as the desktop shows it: message boxes, modal windows, sound, pointer, locale and typefaces.
//
// Everything that shows something or lets events through carries what the logic has written to the screen first, so
// that what stood there before an error is visible behind its message.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/platform.h"
#include "ui/binding/gate.h"
#include "ui/binding/sync.h"

class QWidget;

namespace ui {

/// A window on the screen with the bindings that keep it in step with its model.
struct ShownWindow {
  QWidget* widget = nullptr;  // a QDialog where it is to be modal
  Carrier* bindings = nullptr;
};

class QtPlatform : public base::Platform {
 public:
  QtPlatform(Gate& gate, Sync& sync) : gate_(gate), sync_(sync) {}

  /// When a window that is shown comes to the screen: a loading screen only when there is something to wait for.
  enum class Appears { atOnce, whenItTakesLonger };
  /// How the window named `name` is built; it is built on first use and kept.
  void offerWindow(std::string_view name, std::function<ShownWindow()> build, Appears appears = Appears::atOnce);

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
  struct Entry {
    std::function<ShownWindow()> build;
    Appears appears;
    ShownWindow window;
  };
  Entry& entryOf(const base::Window& window);
  void appear(Entry& entry);
  ShownWindow& shown(const base::Window& window);

  Gate& gate_;
  Sync& sync_;
  std::map<std::string, Entry, std::less<>> windows_;
  bool hasHourglass_ = false;
  Entry* waiting_ = nullptr;  // shown, but not on the screen yet
  std::chrono::steady_clock::time_point lastRefresh_;
};

}  // namespace ui
