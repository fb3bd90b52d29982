// The world as the desktop shows it: message boxes, modal windows, sound, pointer, locale and typefaces.
//
// Everything that shows something or lets events through carries what the logic has written to the screen first, so
// that what stood there before an error is visible behind its message.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "base/platform.h"
#include "ui/gate.h"
#include "ui/sync.h"

class QDialog;
class QWidget;

namespace ui {

/// A window on the screen with the bindings that keep it in step with its model.
struct ShownWindow {
  QDialog* dialog = nullptr;
  Carrier* bindings = nullptr;
};

class QtPlatform : public base::Platform {
 public:
  QtPlatform(Gate& gate, Sync& sync) : gate_(gate), sync_(sync) {}

  /// How the window named `name` is built; it is built on first use and kept.
  void offerWindow(std::string_view name, std::function<ShownWindow()> build);

  base::MessageAnswer messageBox(const base::Message& message) override;
  void showModal(base::Window& window) override;
  void close(base::Window& window) override;
  void beep() override;
  void setHourglass(base::Hourglass hourglass) override;
  [[nodiscard]] base::NumberFormat numberFormat() const override;
  [[nodiscard]] std::string composed(std::string_view text) const override;
  [[nodiscard]] std::vector<std::string> fontFamilies() const override;

 private:
  struct Entry {
    std::function<ShownWindow()> build;
    ShownWindow window;
  };
  ShownWindow& shown(const base::Window& window);

  Gate& gate_;
  Sync& sync_;
  std::map<std::string, Entry, std::less<>> windows_;
  bool hasHourglass_ = false;
};

}  // namespace ui
