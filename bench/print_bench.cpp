// What a long printout of the container costs: its pages counted, which is what the preview begins with, and its PDF
// file made, beside the toolkit printing the same text by itself.
#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QTextDocument>
#include <cstdlib>
#include <functional>
#include <string>

#include "base/document.h"
#include "measure.h"
#include "qttext/pages.h"
#include "qttext/pdf.h"

namespace {

constexpr int kRounds = 3;
constexpr int kLines = 17'000;

std::string lines() {
  std::string text;
  for (int i = 0; i < kLines; ++i) text += "Nettopreis für " + std::to_string(i) + " Zeichen, 50 mm, Stück 3\r\n";
  return text;
}

double processor(const std::function<void()>& action) {
  return bench::medianMilliseconds<bench::ProcessorClock>(
      kRounds, [] { return 0; }, [&](int) { action(); });
}

int pagesOf(const base::PrintJob& job) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter device(&buffer);
  return qttext::Pages(job, device).count();
}

void printByToolkit(const std::string& text) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter device(&buffer);
  QTextDocument document;
  document.setDefaultFont(QFont(QStringLiteral("Arial"), 8));
  document.setPlainText(QString::fromStdString(text));
  document.print(&device);
}

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  const std::string text = lines();
  const base::PrintJob job{.title = "Tessik 1.4",
                           .heading = "Container",
                           .parts = {base::plainDocument(text, {.family = "Arial", .points = 8})}};
  bench::Table table({"pages", "count ms", "PDF ms", "toolkit ms"});
  table.row("container, Arial 8", {static_cast<double>(pagesOf(job)), processor([&] { pagesOf(job); }),
                                   processor([&] { qttext::pdf(job); }), processor([&] { printByToolkit(text); })});
  return EXIT_SUCCESS;
}
