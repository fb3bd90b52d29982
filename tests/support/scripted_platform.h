// A platform that a test scripts: every question is expected in order, with all it shows, and has its answer ready. An
// unexpected question fails the test, and so does one that was never asked.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "base/platform.h"

namespace support {

class ScriptedPlatform : public base::Platform {
 public:
  ScriptedPlatform() = default;
  ScriptedPlatform(const ScriptedPlatform&) = delete;
  ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;
  ~ScriptedPlatform() override;

  /// Expects this message next and gives `answer`.
  void expectMessage(base::Message message, base::MessageAnswer answer = base::MessageAnswer::ok);
  /// Expects the modal window `name` next; `whileOpen` acts as the person before it and must close it.
  void expectModal(std::string name, std::function<void(base::Window&)> whileOpen);

  int beeps = 0;
  base::Hourglass hourglass = base::Hourglass::off;
  base::NumberFormat format;
  std::vector<std::string> families = {"Arial", "DejaVu Sans"};

  base::MessageAnswer messageBox(const base::Message& message) override;
  void showModal(base::Window& window) override;
  void close(base::Window& window) override;
  void beep() override { ++beeps; }
  void setHourglass(base::Hourglass value) override { hourglass = value; }
  [[nodiscard]] base::NumberFormat numberFormat() const override { return format; }
  [[nodiscard]] std::string composed(std::string_view text) const override { return std::string(text); }
  [[nodiscard]] std::vector<std::string> fontFamilies() const override { return families; }

 private:
  struct Question {
    base::Message message;  // of a message box
    base::MessageAnswer answer = base::MessageAnswer::ok;
    std::string window;  // of a modal window, else empty
    std::function<void(base::Window&)> whileOpen;
  };
  /// The next expected question; fails the test and returns an empty one when none is.
  Question next(const std::string& asked);

  std::deque<Question> expected_;
  base::Window* open_ = nullptr;
};

}  // namespace support
