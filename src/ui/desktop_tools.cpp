// The desktop's tools, each in a process of its own.
#include "ui/desktop_tools.h"

#include <QProcess>

#include "base/failure.h"
#include "ui/utf8.h"

namespace ui {
namespace {

// It may go on as long as the program that it opens; what it cannot do it says at once. It belongs to nobody, since a
// process is killed with what owns it, and the message may be finished when Tessik has long ended.
bool succeeds(const QString& tool, const QStringList& arguments) {
  constexpr int kPatience = 3000;  // milliseconds
  auto* const process = new QProcess;
  QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
  process->setStandardInputFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  process->start(tool, arguments);
  if (!process->waitForStarted()) {
    process->deleteLater();
    return false;
  }
  if (!process->waitForFinished(kPatience)) return true;
  return process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
}

}  // namespace

void composeMail(const std::string& file, const std::string& subject) {
  if (succeeds(QStringLiteral("xdg-email"), {QStringLiteral("--utf8"), QStringLiteral("--subject"), toQString(subject),
                                             QStringLiteral("--attach"), toQString(file)})) {
    return;
  }
  throw base::Failure(base::ErrorNumber::deviceUnavailable,
                      "Es wurde kein E-Mail-Programm gefunden. Das Angebot liegt als PDF-Datei hier und kann von Hand "
                      "angehängt werden:\n" +
                          file);
}

void showFile(const std::string& file) {
  if (succeeds(QStringLiteral("xdg-open"), {toQString(file)})) return;
  throw base::Failure(base::ErrorNumber::deviceUnavailable,
                      "Es wurde kein Programm gefunden, das diese Datei anzeigt:\n" + file);
}

}  // namespace ui
