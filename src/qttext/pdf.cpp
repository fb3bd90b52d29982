// Print jobs as PDF files.
#include "qttext/pdf.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>
#include <array>

#include "base/version.h"
#include "qtcore/utf8.h"

namespace qttext {

QPageLayout ordinaryPaper() {
  return {QPageSize(QPageSize::A4), QPageLayout::Portrait, kPageMargins, QPageLayout::Millimeter};
}

std::string pdf(const base::PrintJob& job, const PdfPages& pages, const std::function<void()>& eachPage) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setTitle(qtcore::toQString(job.title));
    writer.setCreator(qtcore::toQString(base::versionLine()));
    writer.setPageLayout(pages.layout);
    writer.setPageRanges(pages.ranges);
    printPages(job, writer, pages.order, eachPage);
  }
  return bytes.data().toStdString();
}

std::string pdfWithoutScreen(const base::PrintJob& job) {
  std::array<char, 7> program{"tessik"};
  std::array<char, 10> option{"-platform"};
  std::array<char, 10> platform{"offscreen"};
  std::array<char*, 4> arguments{program.data(), option.data(), platform.data(), nullptr};
  int count = static_cast<int>(arguments.size()) - 1;
  const QGuiApplication application(count, arguments.data());
  return pdf(job);
}

}  // namespace qttext
