// The German dictionary of Hunspell, as the desktop has it installed.
#pragma once

#include <QString>
#include <QStringDecoder>
#include <QStringEncoder>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dictionary.h"

class Hunspell;

namespace ui {

class HunspellDictionary : public base::Dictionary {
 public:
  /// Where a German dictionary lies, without the ".dic" of its name: that of the user's country before the others;
  /// nothing when there is none. Cheap.
  static std::optional<QString> installed();

  /// Reads the dictionary at `stem`. Null for one that is damaged.
  static std::unique_ptr<HunspellDictionary> read(const QString& stem);

  ~HunspellDictionary() override;

  [[nodiscard]] bool knows(std::string_view word) override;
  [[nodiscard]] std::vector<std::string> suggestions(std::string_view word) override;

 private:
  explicit HunspellDictionary(const QString& stem);
  [[nodiscard]] bool isSound();
  [[nodiscard]] std::optional<std::string> encoded(std::string_view word);

  std::unique_ptr<Hunspell> hunspell_;
  QStringEncoder toDictionary_;
  QStringDecoder fromDictionary_;
};

}  // namespace ui
