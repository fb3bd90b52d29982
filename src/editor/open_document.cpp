// The document that is open.
#include "editor/open_document.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/encoding.h"
#include "base/file_replacement.h"
#include "base/files.h"
#include "editor/document_file.h"
#include "editor/rtf_reader.h"
#include "editor/rtf_writer.h"

namespace editor {
namespace {

// A NUL stands in no text file but one of UTF-16, and in most others early.
bool isText(std::string_view bytes) {
  if (isRtf(bytes)) return true;
  const base::Encoding encoding = base::encodingOf(bytes);
  const bool isWide = encoding == base::Encoding::utf16LittleEndian || encoding == base::Encoding::utf16BigEndian;
  return isWide || bytes.find('\0') == std::string_view::npos;
}

std::string withSuffix(const std::string& name) { return name.ends_with(".rtf") ? name : name + ".rtf"; }

bool mayReplace(const std::string& path, base::Platform& platform) {
  if (!base::FileExists(path)) return true;
  return platform.messageBox({.text = "Die Datei gibt es schon:\r\n" + path + "\r\n\r\nSoll sie ersetzt werden?",
                              .icon = base::MessageIcon::exclamation,
                              .buttons = base::MessageButtons::yesNo}) == base::MessageAnswer::yes;
}

}  // namespace

bool isSaved(const OpenDocument& document, const base::RichText& text) {
  return document.savedRevision == text.revision();
}

void markSaved(OpenDocument& document, const base::RichText& text) { document.savedRevision = text.revision(); }

base::Document readDocument(const std::string& path, base::Platform& platform) {
  platform.setHourglass(base::Hourglass::on);
  const std::optional<std::string> bytes = base::readFile(path);
  if (!bytes) throw base::fileFailure(base::ErrorNumber::fileNotFound, path);
  if (!isText(*bytes)) throw base::fileFailure(base::ErrorNumber::badFormat, path);
  return readDocumentFile(*bytes);
}

void clearText(base::RichText& text) {
  text.setDocument({});
  text.setFormat({});
}

std::string saveByDialog(const base::RichText& text, const std::string& suggestion, base::Platform& platform) {
  std::string path;
  do {
    path = withSuffix(
        platform.askSaveFile({.title = "Speichern", .filter = std::string(kSaveFilter), .suggestion = suggestion}));
  } while (!mayReplace(path, platform));
  platform.setHourglass(base::Hourglass::on);
  base::replaceFile(path, writeRtf(text.document()));
  platform.setHourglass(base::Hourglass::off);
  return path;
}

base::MessageAnswer askToSave(base::Platform& platform) {
  return platform.messageBox({.text = "Möchten Sie die Änderungen speichern?",
                              .icon = base::MessageIcon::question,
                              .buttons = base::MessageButtons::yesNoCancel});
}

}  // namespace editor
