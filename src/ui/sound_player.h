// Wave files, played by a program of the sound system in a process of its own: a sound server that hangs holds up that
// process and not us.
#pragma once

#include <QProcess>
#include <QString>
#include <string>

namespace ui {

/// How many devices can play; none when nothing is there to play on them.
int soundDevices();

class SoundPlayer {
 public:
  ~SoundPlayer() { stop(); }

  /// False when the file is no wave file that can be read, or nothing plays it; nothing is open then.
  bool open(const std::string& path);
  void play();
  void stop();
  void close() { path_.clear(); }

 private:
  QString path_;
  QProcess process_;
};

}  // namespace ui
