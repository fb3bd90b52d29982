// A platform that a test scripts.
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace support {

ScriptedPlatform::~ScriptedPlatform() {
  for (const Question& question : expected_) {
    ADD_FAILURE() << "never asked: " << question.window << question.message.title << ": " << question.message.text;
  }
}

void ScriptedPlatform::expectMessage(base::Message message, base::MessageAnswer answer) {
  expected_.push_back({.message = std::move(message), .answer = answer, .window = {}, .whileOpen = {}});
}

void ScriptedPlatform::expectAnyMessage(base::MessageAnswer answer) {
  expected_.push_back({.message = {}, .answer = answer, .isAny = true, .window = {}, .whileOpen = {}});
}

void ScriptedPlatform::expectModal(std::string name, std::function<void(base::Window&)> whileOpen) {
  expected_.push_back({.message = {}, .window = std::move(name), .whileOpen = std::move(whileOpen)});
}

void ScriptedPlatform::expectFileDialog(std::string filter, std::optional<std::string> chosen) {
  expected_.push_back({.message = {}, .window = std::move(filter), .whileOpen = {}, .file = std::move(chosen)});
}

void ScriptedPlatform::expectInput(base::InputQuestion question, std::optional<std::string> answer) {
  base::Message shown{.text = std::move(question.text), .title = std::move(question.title)};
  expected_.push_back({.message = std::move(shown), .window = {}, .whileOpen = {}, .file = std::move(answer)});
}

std::optional<std::string> ScriptedPlatform::inputBox(const base::InputQuestion& question) {
  const Question expected = next(question.text);
  EXPECT_EQ(expected.message.text, question.text);
  EXPECT_EQ(expected.message.title, question.title);
  return expected.file;
}

std::string ScriptedPlatform::answerOf(const std::string& filter) {
  const Question question = next(filter);
  EXPECT_EQ(question.window, filter);
  if (!question.file) throw base::Failure(base::ErrorNumber::cancelled);
  return *question.file;
}

ScriptedPlatform::Question ScriptedPlatform::next(const std::string& asked) {
  if (expected_.empty()) {
    ADD_FAILURE() << "not expected: " << asked;
    return {};
  }
  Question question = std::move(expected_.front());
  expected_.pop_front();
  return question;
}

base::MessageAnswer ScriptedPlatform::messageBox(const base::Message& message) {
  const Question question = next(message.text);
  if (onMessage) onMessage();
  if (question.isAny) return question.answer;
  EXPECT_EQ(question.message.text, message.text);
  EXPECT_EQ(question.message.title, message.title);
  EXPECT_EQ(question.message.icon, message.icon);
  EXPECT_EQ(question.message.buttons, message.buttons);
  return question.answer;
}

void ScriptedPlatform::showModal(base::Window& window) {
  const Question question = next(std::string(window.name));
  EXPECT_EQ(question.window, window.name);
  const std::size_t outer = open_.size();
  open_.push_back(&window);
  window.isOpen = true;
  if (question.whileOpen) question.whileOpen(window);
  EXPECT_EQ(open_.size(), outer) << window.name << " was left open";
  open_.resize(outer);
  window.isOpen = false;
}

void ScriptedPlatform::close(base::Window& window) {
  ASSERT_FALSE(open_.empty()) << window.name;
  EXPECT_EQ(open_.back(), &window);
  open_.pop_back();
}

std::optional<std::string> ScriptedPlatform::userSetting(std::string_view key) const {
  const auto found = userSettings.find(key);
  return found == userSettings.end() ? std::nullopt : std::optional(found->second);
}

void ScriptedPlatform::saveUserSettings(const std::vector<base::UserSetting>& settings) {
  if (storeFailure) throw base::Failure(*storeFailure);
  for (const base::UserSetting& setting : settings) {
    userSettings[setting.key] = setting.value;
    log.push_back("save " + setting.key);
  }
}

}  // namespace support
