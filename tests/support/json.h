// A small reader for the JSON of the tests' own data: well-formed, numbers are doubles, escapes are single letters.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace support {

struct Json {
  using Array = std::vector<Json>;
  using Object = std::map<std::string, Json, std::less<>>;
  using Value = std::variant<std::nullptr_t, double, std::string, Array, Object>;

  static Json read(const std::string& path);

  /// Each throws when the value is of another kind or the member is missing.
  [[nodiscard]] double number() const { return std::get<double>(value); }
  [[nodiscard]] const std::string& text() const { return std::get<std::string>(value); }
  [[nodiscard]] const Array& items() const { return std::get<Array>(value); }
  [[nodiscard]] const Object& members() const { return std::get<Object>(value); }
  const Json& operator[](std::string_view name) const;

  [[nodiscard]] bool isNull() const { return std::holds_alternative<std::nullptr_t>(value); }
  [[nodiscard]] bool has(std::string_view name) const { return members().contains(name); }

  Value value = nullptr;
};

}  // namespace support
