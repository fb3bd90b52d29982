// Wave files, played by a program of the sound system.
#include "ui/sound_player.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <utility>

#include "ui/utf8.h"

namespace ui {
namespace {

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

bool hasServer(const char* socket) {
  const QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  return !directory.isEmpty() && QFileInfo::exists(QDir(directory).filePath(QString::fromLatin1(socket)));
}

// Each plays on what the others do not: a server of its own, or the cards. Without that it would be silent.
QString playerProgram() {
  const std::pair<const char*, bool> players[] = {
      {"paplay", hasServer("pulse/native")}, {"pw-play", hasServer("pipewire-0")}, {"aplay", cards() > 0}};
  for (const auto& [name, hasDevice] : players) {
    QString found = hasDevice ? QStandardPaths::findExecutable(QString::fromLatin1(name)) : QString();
    if (!found.isEmpty()) return found;
  }
  return {};
}

}  // namespace

// A server may have devices that are no cards of this computer.
int soundDevices() { return playerProgram().isEmpty() ? 0 : std::max(cards(), 1); }

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
