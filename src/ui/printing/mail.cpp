// New messages in the desktop's mail program.
#include "ui/printing/mail.h"

#include <QCoreApplication>
#include <QProcess>

#include "base/failure.h"
#include "ui/utf8.h"

namespace ui {
namespace {

[[noreturn]] void noMailProgram(const std::string& file) {
  throw base::Failure(base::ErrorNumber::deviceUnavailable,
                      "Es wurde kein E-Mail-Programm gefunden. Das Angebot liegt als PDF-Datei hier und kann von Hand "
                      "angehängt werden:\n" +
                          file);
}

}  // namespace

// It may go on as long as the message is written; what it cannot do it says at once.
void composeMail(const std::string& file, const std::string& subject) {
  constexpr int kPatience = 3000;  // milliseconds
  auto* const tool = new QProcess(QCoreApplication::instance());
  QObject::connect(tool, &QProcess::finished, tool, &QObject::deleteLater);
  tool->setStandardOutputFile(QProcess::nullDevice());
  tool->setStandardErrorFile(QProcess::nullDevice());
  tool->start(QStringLiteral("xdg-email"), {QStringLiteral("--utf8"), QStringLiteral("--subject"), toQString(subject),
                                            QStringLiteral("--attach"), toQString(file)});
  if (!tool->waitForStarted()) {
    tool->deleteLater();
    noMailProgram(file);
  }
  if (tool->waitForFinished(kPatience) && (tool->exitStatus() != QProcess::NormalExit || tool->exitCode() != 0)) {
    noMailProgram(file);
  }
}

}  // namespace ui
