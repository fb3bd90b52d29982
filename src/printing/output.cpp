// Where a printout goes.
#include "printing/output.h"

#include <filesystem>

#include "base/file_replacement.h"
#include "editor/open_document.h"

namespace printing {
namespace {

bool findsPrinter(base::Platform& platform) {
  if (platform.hasPrinter()) return true;
  platform.messageBox({.text = "Fehler: Kein Drucker installiert!", .icon = base::MessageIcon::exclamation});
  return false;
}

}  // namespace

void print(const base::PrintJob& job, base::Platform& platform) {
  if (findsPrinter(platform)) platform.print(job);
}

void setUpPrinter(base::Platform& platform) {
  if (findsPrinter(platform)) platform.printerSetUp();
}

void saveAsPdf(const base::PrintJob& job, const std::string& suggestion, base::Platform& platform) {
  constexpr const char* kFilter = "PDF-Dokument (*.pdf)|*.pdf";
  const std::string path = editor::askForTarget(
      {.title = "Als PDF speichern", .filter = kFilter, .suggestion = suggestion}, ".pdf", platform);
  base::replaceFile(path, platform.pdf(job));
}

std::string pdfNameOf(const std::string& file, const std::string& otherwise) {
  const std::string name = std::filesystem::path(file).stem().string();
  return (name.empty() ? otherwise : name) + ".pdf";
}

}  // namespace printing
