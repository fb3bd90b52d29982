// The world as the desktop shows it: boxes, windows, sound, pointer, locale and typefaces.
//
// Everything that shows something or lets events through carries what the logic has written to the screen first, so
// that what stood there before an error is visible behind its message.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/platform.h"
#include "ui/aside.h"
#include "ui/binding/gate.h"
#include "ui/binding/input_filter.h"
#include "ui/binding/sync.h"
#include "ui/hunspell_dictionary.h"
#include "ui/own_files.h"
#include "ui/printing/printing.h"
#include "ui/shown_windows.h"
#include "ui/sound_player.h"

namespace ui {

class QtPlatform : public base::Platform {
 public:
  QtPlatform(Gate& gate, Sync& sync, InputFilter& input, ShownWindows& windows)
      : gate_(gate), sync_(sync), input_(input), windows_(windows) {}

  /// Nobody answers any more: questions are answered as if their box was closed, and nothing is shown.
  void setUnattended() { isUnattended_ = true; }
  /// Another clock than the computer's.
  void setClock(std::function<base::DateTime()> clock) { clock_ = std::move(clock); }
  /// Another sound for refused actions than the desktop's.
  void setBell(std::function<void()> bell) { bell_ = std::move(bell); }

  base::MessageAnswer messageBox(const base::Message& message) override;
  std::optional<std::string> inputBox(const base::InputQuestion& question) override;
  std::string askOpenFile(const base::FileQuestion& question) override;
  std::string askSaveFile(const base::FileQuestion& question) override;
  base::CharFormat askFont(const base::CharFormat& present) override;
  std::optional<base::Rgb> askColour(std::optional<base::Rgb> present) override;
  void showModal(base::Window& window) override { windows_.showModal(window); }
  void show(base::Window& window) override;
  void close(base::Window& window) override { windows_.requestClose(window); }
  void hide(base::Window& window) override { windows_.hide(window); }
  void refresh() override;
  bool escapePressed() override;
  void setHourglass(base::Hourglass hourglass) override;
  bool runAside(const std::function<void()>& work) override;
  std::optional<bool> asideSucceeded() override { return aside_.succeeded(); }
  void awaitAside() override { aside_.await(); }
  void beep() override;
  [[nodiscard]] int soundDevices() const override { return ui::soundDevices(); }
  bool openSound(const std::string& path) override { return sound_.open(path); }
  void playSound() override { sound_.play(); }
  void stopSound() override { sound_.stop(); }
  void closeSound() override { sound_.close(); }
  [[nodiscard]] std::string ownFile(std::string_view name) const override { return ui::ownFile(name); }
  void notify(const base::Notification& notification) override;
  [[nodiscard]] base::DateTime now() const override;
  [[nodiscard]] int screenWidth() const override;
  [[nodiscard]] base::SystemInformation systemInformation() const override;
  [[nodiscard]] std::string systemRoot() const override;
  [[nodiscard]] std::vector<base::Volume> volumes() const override;
  [[nodiscard]] std::string clipboardText() const override;
  [[nodiscard]] std::optional<base::Document> clipboardDocument() const override;
  void setClipboardText(std::string_view text) override;
  void setClipboard(const base::Document& document) override;
  [[nodiscard]] bool hasPrinter() override;
  void print(const base::PrintJob& job) override;
  void printPreview(const base::PrintJob& job) override;
  void printerSetUp() override;
  [[nodiscard]] std::string pdf(const base::PrintJob& job) override;
  void mail(const std::string& file, const std::string& subject) override;
  void openFile(const std::string& file) override;
  [[nodiscard]] std::optional<std::string> userSetting(std::string_view key) const override;
  void saveUserSettings(const std::vector<base::UserSetting>& settings) override;
  [[nodiscard]] base::NumberFormat numberFormat() const override;
  [[nodiscard]] base::DateFormat dateFormat() const override;
  [[nodiscard]] std::string regionalDate(const base::DateTime& moment) const override;
  [[nodiscard]] std::string regionalTime(const base::DateTime& moment) const override;
  [[nodiscard]] std::string composed(std::string_view text) const override;
  [[nodiscard]] base::Dictionary* dictionary() override;
  [[nodiscard]] std::vector<std::string> fontFamilies() const override;

 private:
  Gate& gate_;
  Sync& sync_;
  InputFilter& input_;
  ShownWindows& windows_;
  std::function<void()> bell_;
  std::function<base::DateTime()> clock_;
  SoundPlayer sound_;
  Aside aside_;
  Printing printing_;
  std::unique_ptr<HunspellDictionary> dictionary_;
  bool hasHourglass_ = false;
  bool isUnattended_ = false;
  std::chrono::steady_clock::time_point lastRefresh_;
};

}  // namespace ui
