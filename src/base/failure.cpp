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
    Entry{ErrorNumber::badFileName, "Ungültiger Dateiname"},
    Entry{ErrorNumber::fileNotFound, "Datei nicht gefunden"},
    Entry{ErrorNumber::deviceIo, "Ein-/Ausgabefehler des Geräts"},
    Entry{ErrorNumber::fileExists, "Datei existiert bereits"},
    Entry{ErrorNumber::diskFull, "Datenträger voll"},
    Entry{ErrorNumber::deviceUnavailable, "Gerät nicht verfügbar"},
    Entry{ErrorNumber::permissionDenied, "Zugriff verweigert"},
    Entry{ErrorNumber::diskNotReady, "Datenträger nicht bereit"},
    Entry{ErrorNumber::pathFileAccess, "Fehler beim Zugriff auf Pfad oder Datei"},
    Entry{ErrorNumber::pathNotFound, "Pfad nicht gefunden"},
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

Failure failureOf(const std::exception& fault) {
  if (dynamic_cast<const std::bad_alloc*>(&fault) != nullptr) return Failure(ErrorNumber::outOfMemory);
  if (const auto* const failure = dynamic_cast<const Failure*>(&fault)) return *failure;
  return {ErrorNumber::internal, errorText(ErrorNumber::internal) + ": " + fault.what()};
}

void Failure::stamp(std::string_view tag) {
  if (tag_.empty()) tag_ = tag;
}

}  // namespace base
