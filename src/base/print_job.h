// What is printed, as a value: a heading for the pages and, one below the other, texts and tables.
//
// Printer, preview and PDF file show the same pages of it.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/document.h"

namespace base {

/// The name under which the printer's queue shows what we print.
inline constexpr std::string_view kPrintJobName = "Tessik Print Control";
/// Stands before the number of each page.
inline constexpr std::string_view kPageCaption = "Seite: ";

/// A line of a table: what it is on the left, how much on the right.
struct PrintRow {
  std::string label;
  std::string value;
  bool isTotal = false;  // bold, below a rule

  bool operator==(const PrintRow&) const = default;
};

struct PrintTable {
  std::vector<PrintRow> rows;

  bool operator==(const PrintTable&) const = default;
};

/// A line across the page.
struct PrintRule {
  bool operator==(const PrintRule&) const = default;
};

using PrintPart = std::variant<Document, PrintTable, PrintRule>;

enum class HeadingOn { everyPage, followingPages };

struct PrintJob {
  std::string title;    // of the document, which a PDF file tells too
  std::string heading;  // stands above each page beside the title
  HeadingOn headingOn = HeadingOn::everyPage;
  std::vector<PrintPart> parts;

  bool operator==(const PrintJob&) const = default;
};

}  // namespace base
