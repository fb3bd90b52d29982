// Wave files, played by a program of the sound system.
#include "ui/sound_player.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <initializer_list>

#include "ui/utf8.h"

namespace ui {
namespace {

QString playerProgram() {
  for (const char* const name : {"paplay", "pw-play", "aplay"}) {
    QString found = QStandardPaths::findExecutable(QString::fromLatin1(name));
    if (!found.isEmpty()) return found;
  }
  return {};
}

bool isWaveFile(const QString& path) {
  constexpr qint64 kHeaderLength = 12;
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray header = file.read(kHeaderLength);
  return header.startsWith("RIFF") && header.endsWith("WAVE");
}

// The system's table of devices, one a line.
int cards() {
  QFile table(QStringLiteral("/proc/asound/pcm"));
  if (!table.open(QIODevice::ReadOnly)) return 0;
  return static_cast<int>(table.readAll().count("playback"));
}

// A sound server has devices that are no cards of this computer.
bool hasServer() {
  const QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  return !directory.isEmpty() && QFileInfo::exists(directory + QStringLiteral("/pulse/native"));
}

}  // namespace

int soundDevices() {
  if (playerProgram().isEmpty()) return 0;
  return cards() + (hasServer() ? 1 : 0);
}

bool SoundPlayer::open(const std::string& path) {
  const QString file = toQString(path);
  if (!isWaveFile(file) || playerProgram().isEmpty()) return false;
  path_ = QFileInfo(file).absoluteFilePath();
  return true;
}

void SoundPlayer::play() {
  if (!path_.isEmpty()) process_.start(playerProgram(), {path_});
}

void SoundPlayer::stop() {
  if (process_.state() == QProcess::NotRunning) return;
  process_.kill();
  process_.waitForFinished();
}

}  // namespace ui
