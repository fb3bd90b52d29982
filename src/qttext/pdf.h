// Print jobs as PDF files.
#pragma once

#include <QPageLayout>
#include <QPageRanges>
#include <functional>
#include <string>

#include "base/print_job.h"
#include "qttext/pages.h"

namespace qttext {

/// A4, upright.
QPageLayout ordinaryPaper();

/// What of a job goes on which paper.
struct PdfPages {
  QPageLayout layout = ordinaryPaper();
  QPageRanges ranges = {};  // empty: all
  PageOrder order = PageOrder::firstFirst;
};

/// The bytes of a PDF file; wants a QGuiApplication. Typefaces are embedded.
std::string pdf(const base::PrintJob& job, const PdfPages& pages = {}, const std::function<void()>& eachPage = {});

/// The same where there is no application yet and perhaps no screen.
std::string pdfWithoutScreen(const base::PrintJob& job);

}  // namespace qttext
