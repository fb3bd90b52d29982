// What the program prints beside offers.
#include "printing/printouts.h"

#include <filesystem>
#include <utility>

#include "base/text.h"
#include "base/version.h"

namespace printing {
namespace {

base::PrintJob job(std::string heading, base::Document text) {
  return {.title = base::versionLine(), .heading = std::move(heading), .parts = {std::move(text)}};
}

std::string printed(std::string_view what, const base::DateTime& moment) {
  return std::string(what) + " - Ausdruck vom " + base::dateText(moment) + " um " + base::timeText(moment);
}

}  // namespace

base::PrintJob listing(std::string_view heading, std::string_view text) {
  constexpr double kPoints = 10;
  return job(std::string(heading), base::plainDocument(text, {.family = "Courier New", .points = kPoints}));
}

base::PrintJob documentPrintout(const base::RichText& text, const std::string& file, const base::DateTime& moment) {
  const std::string name = file.empty() ? "Dokument" : std::filesystem::path(file).filename().string();
  return job(printed(name, moment), text.document());
}

base::PrintJob containerPrintout(const base::RichText& text, const base::DateTime& moment) {
  constexpr std::size_t kRuleLength = 125;
  const std::string lineBreak(base::kLineBreak);
  const bool ofSelection = text.selection().length > 0;
  const std::string content =
      ofSelection ? lineBreak + text.selectedText() + lineBreak + std::string(kRuleLength, '-') : text.plainText();
  return job(printed("Container", moment), base::plainDocument(content, {.colour = 0x000000}));
}

base::PrintJob appointmentPrintout(std::string_view listName, const base::ItemList& lines,
                                   const base::DateTime& moment) {
  constexpr double kPoints = 10;
  std::string text;
  for (const std::string& line : lines) text.append(line).append(base::kLineBreak);
  return job(printed(listName, moment), base::plainDocument(text, {.points = kPoints}));
}

}  // namespace printing
