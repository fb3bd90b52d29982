// Where a printout goes: to a printer, into a PDF file.
#pragma once

#include <string>

#include "base/platform.h"
#include "base/print_job.h"

namespace printing {

/// Without a printer these say so.
void print(const base::PrintJob& job, base::Platform& platform);
void setUpPrinter(base::Platform& platform);

/// Asks for a name, of which `suggestion` is the first. A file that cannot be written is a Failure and stays what it
/// was; leaving the dialog is one too (cancelled).
void saveAsPdf(const base::PrintJob& job, const std::string& suggestion, base::Platform& platform);

/// The name of a PDF file that goes with the document `file`, or with `otherwise` where there is none.
std::string pdfNameOf(const std::string& file, const std::string& otherwise);

}  // namespace printing
