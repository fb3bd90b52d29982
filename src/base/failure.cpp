// The table of error numbers and their German texts.
#include "base/failure.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace base {
namespace {

struct Entry {
  ErrorNumber number;
  std::string_view text;
};

constexpr std::array kErrors = {
    Entry{ErrorNumber::none, "Kein Fehler"},
    Entry{ErrorNumber::invalidCall, "Ungültiger Prozeduraufruf oder ungültiges Argument"},
    Entry{ErrorNumber::overflow, "Überlauf: Die Zahl ist zu groß"},
    Entry{ErrorNumber::outOfMemory, "Nicht genügend Speicher"},
    Entry{ErrorNumber::indexOutOfRange, "Index außerhalb des gültigen Bereichs"},
    Entry{ErrorNumber::divisionByZero, "Division durch Null"},
    Entry{ErrorNumber::typeMismatch, "Typen unverträglich: Hier wird eine Zahl erwartet"},
    Entry{ErrorNumber::internal, "Interner Fehler"},
    Entry{ErrorNumber::badFileName, "Der Dateiname ist ungültig."},
    Entry{ErrorNumber::fileNotFound, "Die Datei wurde nicht gefunden."},
    Entry{ErrorNumber::deviceIo, "Das Gerät meldet einen Fehler beim Lesen oder Schreiben."},
    Entry{ErrorNumber::fileExists, "Die Datei gibt es schon."},
    Entry{ErrorNumber::diskFull, "Auf dem Datenträger ist kein Platz mehr."},
    Entry{ErrorNumber::deviceUnavailable, "Das Gerät ist nicht verfügbar."},
    Entry{ErrorNumber::permissionDenied, "Der Zugriff wurde verweigert."},
    Entry{ErrorNumber::diskNotReady, "Der Datenträger ist nicht bereit."},
    Entry{ErrorNumber::pathFileAccess, "Auf die Datei kann nicht zugegriffen werden."},
    Entry{ErrorNumber::pathNotFound, "Das Verzeichnis wurde nicht gefunden."},
    Entry{ErrorNumber::badFormat, "Das ist kein Text und kein RTF-Dokument."},
    Entry{ErrorNumber::cancelled, "Der Vorgang wurde abgebrochen"},
};

}  // namespace

std::string errorText(ErrorNumber number) {
  const auto* const entry =
      std::find_if(kErrors.begin(), kErrors.end(), [number](const Entry& e) { return e.number == number; });
  if (entry != kErrors.end()) return std::string(entry->text);
  return "Fehler " + std::to_string(static_cast<int>(number));
}

Failure::Failure(ErrorNumber number) : Failure(number, errorText(number)) {}

Failure::Failure(ErrorNumber number, std::string text) : number_(number), text_(std::move(text)) {}

std::string withPlace(std::string_view sentence, std::string_view place, ErrorNumber number) {
  return std::string(sentence).append("\n").append(place).append(" (Fehler ") +
         std::to_string(static_cast<int>(number)) + ")";
}

Failure asFailure(const std::exception& fault, std::string_view tag) {
  Failure result(ErrorNumber::internal,
                 withPlace(errorText(ErrorNumber::internal), fault.what(), ErrorNumber::internal));
  if (const auto* const failure = dynamic_cast<const Failure*>(&fault)) result = *failure;
  if (dynamic_cast<const std::bad_alloc*>(&fault) != nullptr) result = Failure(ErrorNumber::outOfMemory);
  result.stamp(tag);
  return result;
}

void Failure::stamp(std::string_view tag) {
  if (tag_.empty()) tag_ = tag;
}

}  // namespace base
