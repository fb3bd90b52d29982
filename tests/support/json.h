// A small JSON reader for the tests' data and for checking what the program prints.
//
// It reads what RFC 8259 allows, save that numbers are doubles; anything else throws std::runtime_error.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace support {

class Json {
 public:
  using Array = std::vector<Json>;
  using Object = std::map<std::string, Json, std::less<>>;
  using Value = std::variant<std::nullptr_t, bool, double, std::string, Array, Object>;

  static Json parse(std::string_view text);
  static Json read(const std::string& path);

  Json() = default;
  explicit Json(Value value) : value_(std::move(value)) {}

  /// Each throws std::bad_variant_access when the value is of another kind.
  [[nodiscard]] bool boolean() const { return std::get<bool>(value_); }
  [[nodiscard]] double number() const { return std::get<double>(value_); }
  [[nodiscard]] const std::string& text() const { return std::get<std::string>(value_); }
  [[nodiscard]] const Array& items() const { return std::get<Array>(value_); }
  [[nodiscard]] const Object& members() const { return std::get<Object>(value_); }
  /// A member of an object; a missing one throws std::out_of_range.
  const Json& operator[](std::string_view name) const;

  [[nodiscard]] bool isNull() const { return std::holds_alternative<std::nullptr_t>(value_); }
  [[nodiscard]] bool has(std::string_view name) const { return members().contains(name); }

 private:
  Value value_ = nullptr;
};

}  // namespace support
