// A platform that a test scripts: every question is expected in order, with all it shows, and has its answer ready. An
// unexpected question fails the test, and so does one that was never asked.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/failure.h"
#include "base/platform.h"

namespace support {

/// Knows the words it is given, and what each misspelt one may have meant.
struct ScriptedDictionary : base::Dictionary {
  std::set<std::string, std::less<>> words;
  std::map<std::string, std::vector<std::string>, std::less<>> meant;

  [[nodiscard]] bool knows(std::string_view word) override { return words.contains(word); }
  [[nodiscard]] std::vector<std::string> suggestions(std::string_view word) override {
    const auto found = meant.find(word);
    return found == meant.end() ? std::vector<std::string>() : found->second;
  }
};

class ScriptedPlatform : public base::Platform {
 public:
  ScriptedPlatform() = default;
  ScriptedPlatform(const ScriptedPlatform&) = delete;
  ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;
  ~ScriptedPlatform() override;

  /// Expects this message next and gives `answer`.
  void expectMessage(base::Message message, base::MessageAnswer answer = base::MessageAnswer::ok);
  /// Expects a message of any text.
  void expectAnyMessage(base::MessageAnswer answer);
  /// Expects a file dialog with this filter next; nothing chosen is Cancel.
  void expectFileDialog(std::string filter, std::optional<std::string> chosen);
  /// Expects the modal window `name` next; `whileOpen` acts as the person before it and must close it.
  void expectModal(std::string name, std::function<void(base::Window&)> whileOpen);

  /// Expects a question for a line of text; without an answer the box is left.
  void expectInput(base::InputQuestion question, std::optional<std::string> answer);

  /// What was shown and hidden beside the main window, and every status or caption worth telling, in order.
  std::vector<std::string> log;
  /// Runs at each refresh: a test looks at what stands on the screen in the middle of long work.
  std::function<void()> onRefresh;
  std::function<void()> onMessage;  // while it stands there
  std::map<std::string, std::string, std::less<>> userSettings;
  base::DateTime moment{.year = 2026, .month = 11, .day = 21, .hour = 9, .minute = 5, .second = 0};
  base::SystemInformation system;
  int width = 1280;
  std::vector<base::Volume> drives;
  std::string clipboard;
  std::optional<base::Document> clipboardFormats;  // the same text with formats
  /// What dialogs of fonts and colours answer; without an answer they are cancelled.
  std::optional<base::CharFormat> font;
  std::optional<std::optional<base::Rgb>> colour;
  int beeps = 0;
  int printers = 1;
  std::vector<base::PrintJob> printed;  // previewed and saved ones too
  bool escape = false;                  // was pressed
  bool asideFails = false;
  base::Hourglass hourglass = base::Hourglass::off;
  base::NumberFormat format;
  base::DateFormat dates;
  int devices = 1;
  bool playsSounds = true;
  std::optional<ScriptedDictionary> german;  // none: not installed
  std::vector<std::string> families = {"Arial", "DejaVu Sans"};
  /// What asking for the typefaces and storing user settings fail with.
  std::optional<base::Failure> fontFailure;
  std::optional<base::Failure> storeFailure;

  base::MessageAnswer messageBox(const base::Message& message) override;
  std::optional<std::string> inputBox(const base::InputQuestion& question) override;
  void showModal(base::Window& window) override;
  void close(base::Window& window) override;
  void show(base::Window& window) override { window.isOpen = true, log.push_back("show " + std::string(window.name)); }
  void hide(base::Window& window) override { window.isOpen = false, log.push_back("hide " + std::string(window.name)); }
  void refresh() override {
    if (onRefresh) onRefresh();
  }
  bool runAside(const std::function<void()>& work) override { return work(), true; }
  std::optional<bool> asideSucceeded() override { return !asideFails; }
  void awaitAside() override {}
  std::string askOpenFile(const base::FileQuestion& question) override { return answerOf(question.filter); }
  std::string askSaveFile(const base::FileQuestion& question) override { return answerOf(question.filter); }
  bool escapePressed() override { return refresh(), escape; }
  void beep() override { ++beeps; }
  [[nodiscard]] int soundDevices() const override { return devices; }
  bool openSound(const std::string& path) override { return log.push_back("sound " + path), playsSounds; }
  void playSound() override { log.push_back("play"); }
  void stopSound() override { log.emplace_back("stop"), throw base::Failure(base::ErrorNumber::invalidCall); }
  void closeSound() override { throw base::Failure(base::ErrorNumber::invalidCall); }
  [[nodiscard]] std::string ownFile(std::string_view name) const override { return "own " + std::string(name); }
  void notify(const base::Notification& told) override { log.push_back("notify " + told.title + ": " + told.text); }
  [[nodiscard]] base::DateTime now() const override { return moment; }
  [[nodiscard]] int screenWidth() const override { return width; }
  [[nodiscard]] base::SystemInformation systemInformation() const override { return system; }
  [[nodiscard]] std::string systemRoot() const override { return "/usr"; }
  [[nodiscard]] std::vector<base::Volume> volumes() const override { return drives; }
  [[nodiscard]] std::string clipboardText() const override { return clipboard; }
  [[nodiscard]] std::optional<base::Document> clipboardDocument() const override { return clipboardFormats; }
  void setClipboardText(std::string_view text) override { clipboard = text, clipboardFormats.reset(); }
  void setClipboard(const base::Document& document) override {
    clipboard = base::plainText(document), clipboardFormats = document;
  }
  base::CharFormat askFont(const base::CharFormat& /*present*/) override { return answered(font); }
  std::optional<base::Rgb> askColour(std::optional<base::Rgb> /*present*/) override { return answered(colour); }
  [[nodiscard]] bool hasPrinter() override { return printers > 0; }
  void print(const base::PrintJob& job) override { printed.push_back(job), log.emplace_back("print"); }
  void printPreview(const base::PrintJob& job) override { printed.push_back(job); }
  void printerSetUp() override { log.emplace_back("printer"); }
  [[nodiscard]] std::string pdf(const base::PrintJob& job) override { return printed.push_back(job), job.title; }
  void mail(const std::string& file, const std::string& subject) override { log.push_back(subject + ": " + file); }
  void openFile(const std::string& file) override { log.push_back("opened " + file); }
  [[nodiscard]] std::optional<std::string> userSetting(std::string_view key) const override;
  void saveUserSettings(const std::vector<base::UserSetting>& settings) override;
  void setHourglass(base::Hourglass value) override { hourglass = value; }
  [[nodiscard]] base::NumberFormat numberFormat() const override { return format; }
  [[nodiscard]] base::DateFormat dateFormat() const override { return dates; }
  [[nodiscard]] std::string regionalDate(const base::DateTime& day) const override { return base::dateText(day); }
  [[nodiscard]] std::string regionalTime(const base::DateTime& time) const override { return base::timeText(time); }
  [[nodiscard]] std::string composed(std::string_view text) const override { return std::string(text); }
  [[nodiscard]] base::Dictionary* dictionary() override { return german ? &*german : nullptr; }
  [[nodiscard]] std::vector<std::string> fontFamilies() const override {
    if (fontFailure) throw base::Failure(*fontFailure);
    return families;
  }

 private:
  template <typename T>
  static T answered(const std::optional<T>& answer) {
    if (!answer) throw base::Failure(base::ErrorNumber::cancelled);
    return *answer;
  }

  struct Question {
    base::Message message;  // of a message box
    base::MessageAnswer answer = base::MessageAnswer::ok;
    bool isAny = false;
    std::string window;  // of a modal window, else empty
    std::function<void(base::Window&)> whileOpen;
    std::optional<std::string> file = {};  // chosen in a file dialog
  };
  std::string answerOf(const std::string& filter);
  /// The next expected question; fails the test and returns an empty one when none is.
  Question next(const std::string& asked);

  std::deque<Question> expected_;
  std::vector<base::Window*> open_;  // the modal windows, the newest last
};

}  // namespace support
