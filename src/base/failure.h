// The one way in which a step fails: a number, a German text, and the tag of the procedure it failed in.
//
// Numbers are the classic runtime error numbers. They and their texts stand in one table in failure.cpp.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace base {

enum class ErrorNumber : int {
  none = 0,
  invalidCall = 5,
  overflow = 6,
  outOfMemory = 7,
  indexOutOfRange = 9,
  divisionByZero = 11,
  typeMismatch = 13,
  internal = 51,
  badFileName = 52,
  fileNotFound = 53,
  deviceIo = 57,
  fileExists = 58,
  diskFull = 61,
  deviceUnavailable = 68,
  diskNotReady = 71,
  permissionDenied = 70,
  pathFileAccess = 75,
  pathNotFound = 76,
  badFormat = 321,
  cancelled = 32755,
};

/// The German text that goes with `number`; a number outside the table has a text that names it.
std::string errorText(ErrorNumber number);

/// How a text ends that says more than the table: the sentence, then place and number in a line of their own.
std::string withPlace(std::string_view sentence, std::string_view place, ErrorNumber number);

class Failure : public std::exception {
 public:
  /// A failure with the text of the table.
  explicit Failure(ErrorNumber number);
  /// A failure whose text says more than the table knows, such as the file that could not be written.
  Failure(ErrorNumber number, std::string text);

  [[nodiscard]] ErrorNumber number() const { return number_; }
  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

  /// The tag of the innermost tagged procedure the failure passed, empty before that.
  [[nodiscard]] const std::string& tag() const { return tag_; }
  /// Stamps `tag` unless an inner procedure has stamped its own.
  void stamp(std::string_view tag);

 private:
  ErrorNumber number_;
  std::string text_;
  std::string tag_;
};

/// What an exception of any kind is to us: a Failure is itself, lack of memory is error 7, all else error 51.
/// It is stamped with `tag` unless it has a tag.
Failure asFailure(const std::exception& fault, std::string_view tag = {});

/// Runs a tagged procedure that other procedures call: a failure keeps the tag of the innermost one.
template <typename Procedure>
decltype(auto) tagged(std::string_view tag, Procedure&& procedure) {
  try {
    return procedure();
  } catch (const std::exception& fault) {
    throw asFailure(fault, tag);
  }
}

}  // namespace base
