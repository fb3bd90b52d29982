// The document that is open.
#include "editor/open_document.h"

#include <filesystem>
#include <optional>

#include "base/encoding.h"
#include "base/file_replacement.h"
#include "base/files.h"
#include "editor/document_file.h"
#include "editor/rtf_reader.h"
#include "editor/rtf_writer.h"

namespace editor {
namespace {

constexpr const char* kOpenFilter = "RTF-Dokument (*.rtf)|*.rtf|Textdatei (*.txt)|*.txt|Alle Dateien (*.*)|*.*";
constexpr const char* kSaveFilter = "RTF-Dokument (*.rtf)|*.rtf";

// A NUL stands in no text file but one of UTF-16, and in most others early.
bool isText(std::string_view bytes) {
  if (isRtf(bytes)) return true;
  const base::Encoding encoding = base::encodingOf(bytes);
  const bool isWide = encoding == base::Encoding::utf16LittleEndian || encoding == base::Encoding::utf16BigEndian;
  return isWide || bytes.find('\0') == std::string_view::npos;
}

std::string withSuffix(std::string name, std::string_view suffix) {
  return name.ends_with(suffix) ? name : name.append(suffix);
}

bool mayReplace(const std::string& path, base::Platform& platform) {
  if (!base::FileExists(path)) return true;
  return platform.messageBox({.text = "Die Datei gibt es schon:\r\n" + path + "\r\n\r\nSoll sie ersetzt werden?",
                              .icon = base::MessageIcon::exclamation,
                              .buttons = base::MessageButtons::yesNo}) == base::MessageAnswer::yes;
}

base::Document readDocument(const std::string& path) {
  const std::optional<std::string> bytes = base::readFile(path);
  if (!bytes) throw base::fileFailure(base::ErrorNumber::fileNotFound, path);
  if (!isText(*bytes)) throw base::fileFailure(base::ErrorNumber::badFormat, path);
  return readDocumentFile(*bytes);
}

}  // namespace

bool isSaved(const OpenDocument& document, const base::RichText& text) {
  return document.savedRevision == text.revision();
}

void markSaved(OpenDocument& document, const base::RichText& text) { document.savedRevision = text.revision(); }

bool holdsUnsaved(const OpenDocument& document, const base::RichText& text) {
  const base::TextCount count = text.countAll();
  return count.characters + count.lineEnds >= 1 && !isSaved(document, text);
}

void clearText(base::RichText& text) {
  text.setDocument({});
  text.setFormat({});
}

std::string askForDocument(base::Platform& platform) {
  return platform.askOpenFile({.title = "Öffnen", .filter = kOpenFilter, .suggestion = {}});
}

void loadDocument(const DocumentParts& parts, const std::string& path) {
  parts.platform.setHourglass(base::Hourglass::on);
  parts.text.setDocument(readDocument(path));
  parts.document.file = path;
  markSaved(parts.document, parts.text);
  parts.undo.clear();
  parts.platform.setHourglass(base::Hourglass::off);
}

std::string askForTarget(const base::FileQuestion& question, std::string_view suffix, base::Platform& platform) {
  while (true) {
    std::string path = withSuffix(platform.askSaveFile(question), suffix);
    if (mayReplace(path, platform)) return path;
  }
}

void saveByDialog(const DocumentParts& parts) {
  const std::string suggestion = std::filesystem::path(parts.document.file).filename().string();
  const std::string path =
      askForTarget({.title = "Speichern", .filter = kSaveFilter, .suggestion = suggestion}, ".rtf", parts.platform);
  parts.platform.setHourglass(base::Hourglass::on);
  base::replaceFile(path, writeRtf(parts.text.document()));
  parts.platform.setHourglass(base::Hourglass::off);
  parts.document.file = path;
  markSaved(parts.document, parts.text);
  parts.undo.clear();
}

void settleChanges(base::Platform& platform, const std::function<void()>& save, std::string_view question) {
  const base::MessageAnswer answer = platform.messageBox({.text = std::string(question),
                                                          .icon = base::MessageIcon::question,
                                                          .buttons = base::MessageButtons::yesNoCancel});
  if (answer == base::MessageAnswer::cancel) throw base::Failure(base::ErrorNumber::cancelled);
  if (answer == base::MessageAnswer::yes) save();
}

}  // namespace editor
