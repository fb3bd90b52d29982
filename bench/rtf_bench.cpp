// What reading and writing RTF costs, with what others need for the same content beside it. All in processor time.
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QTextDocument>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "editor/rtf_reader.h"
#include "editor/rtf_writer.h"
#include "measure.h"
#include "rtf_sample.h"

namespace {

constexpr int kRuns = 7;
constexpr int kSlowRuns = 1;  // for what takes seconds

int nothing() { return 0; }

std::size_t textBytes(const base::Document& document) {
  std::size_t bytes = 0;
  for (const base::Paragraph& paragraph : document.paragraphs) bytes += paragraph.text.size() + 1;
  return bytes;
}

std::string html(const base::Document& document) {
  std::string text;
  for (const base::Paragraph& paragraph : document.paragraphs) {
    text += "<p>";
    std::string_view rest = paragraph.text;
    for (const base::Run& run : paragraph.runs) {
      const base::CharFormat& format = document.formats[run.format];
      text += "<span style=\"font-family:" + format.family + ";font-size:" + std::to_string(format.points) + "pt";
      if (format.bold) text += ";font-weight:bold";
      if (format.italic) text += ";font-style:italic";
      if (format.colour) text += ";color:#c00000";
      text += "\">";
      text += rest.substr(0, run.size);
      text += "</span>";
      rest.remove_prefix(run.size);
    }
    text += "</p>";
  }
  return text;
}

double childMilliseconds() {
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  const auto milliseconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

// By the program that strips RTF to text, where it is installed; 0 where it is not.
double unrtfMilliseconds(const std::string& rtf) {
  if (std::system("command -v unrtf > /dev/null") != 0) return 0;
  const std::string file = "/tmp/rtf_bench-" + std::to_string(::getpid()) + ".rtf";
  std::ofstream(file, std::ios::binary) << rtf;
  const std::string command = "unrtf --text " + file + " > /dev/null 2>&1";
  const double before = childMilliseconds();
  if (std::system(command.c_str()) != 0) std::puts("unrtf failed");
  std::remove(file.c_str());
  return childMilliseconds() - before;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const base::Document document = bench::sampleDocument();
  const std::string rtf = editor::writeRtf(document);
  if (editor::readRtf(rtf) != document) return EXIT_FAILURE;
  const double megabytes = static_cast<double>(rtf.size()) / 1e6;
  std::printf("%.1f MB of text, %.1f MB of RTF, %zu runs, %zu formats\n\n",
              static_cast<double>(textBytes(document)) / 1e6, megabytes, bench::kSampleRuns, document.formats.size());

  const double reading =
      bench::medianMilliseconds<bench::ProcessorClock>(kRuns, nothing, [&](int) { editor::readRtf(rtf); });
  const double writing =
      bench::medianMilliseconds<bench::ProcessorClock>(kRuns, nothing, [&](int) { editor::writeRtf(document); });
  const QString asHtml = QString::fromStdString(html(document));
  const double settingHtml = bench::medianMilliseconds<bench::ProcessorClock>(kSlowRuns, nothing, [&](int) {
    QTextDocument shown;
    shown.setHtml(asHtml);
  });
  const double unrtf = unrtfMilliseconds(rtf);

  bench::Table table({"ms", "MB of RTF/s"});
  const auto row = [&](const char* name, double taken) { table.row(name, {taken, megabytes / taken * 1000}); };
  row("our reader", reading);
  row("our writer", writing);
  row("QTextDocument::setHtml", settingHtml);
  if (unrtf > 0) row("unrtf --text", unrtf);
  return EXIT_SUCCESS;
}
