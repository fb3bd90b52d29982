// What tells the person about appointments.
#include "planner/reminders.h"

#include <string_view>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/files.h"
#include "base/number.h"
#include "planner/appointment.h"
#include "planner/appointment_store.h"
#include "settings/settings_files.h"

namespace planner {
namespace {

constexpr std::string_view kCheckTag = "modGlobal-Alte_Einträge_löschen";
constexpr std::string_view kTimerTag = "Termine-Timer";
constexpr int kTickMilliseconds = 5000;

// While one announcement stands on the screen no other is made.
class Announcing {
 public:
  explicit Announcing(PlannerWindow& window)
      : window_(window), wasAnnouncing_(std::exchange(window.isAnnouncing, true)) {}
  ~Announcing() { window_.isAnnouncing = wasAnnouncing_; }
  Announcing(const Announcing&) = delete;
  Announcing& operator=(const Announcing&) = delete;

 private:
  PlannerWindow& window_;
  const bool wasAnnouncing_;
};

std::string fixedChime(const base::Platform& platform) { return settings::defaultReminderSound(platform.systemRoot()); }

// The fixed chime is not on every system.
std::string soundAt(const std::string& path, const base::Platform& platform) {
  return path == fixedChime(platform) && !base::FileExists(path) ? platform.ownFile("Chimes.wav") : path;
}

void soundSignal(const PlannerParts& parts, const std::string& sound) {
  if (!Soundkarte_vorhanden(parts.platform)) return parts.platform.beep();
  Sound_abspielen(parts.platform, soundAt(sound, parts.platform));
}

// A fixed count, not a time: the sound begins before the message comes.
void giveSoundHeadStart() {
  constexpr int kCounts = 10'000'000;
  volatile int count = 0;  // or the compiler would count for us
  while (count <= kCounts) count = count + 1;
}

void announceMissed(const PlannerParts& parts, const std::string& line) {
  if (parts.window.Check_Beep.checked) {
    parts.platform.refresh();
    soundSignal(parts, fixedChime(parts.platform));
    giveSoundHeadStart();
  }
  base::Message message{.text = "Sie haben einen Termin versäumt:\r" + toldText(line),
                        .title = announcementOf(line),
                        .icon = base::MessageIcon::information};
  parts.platform.notify({message.title, "Versäumt: " + toldText(line)});
  parts.platform.messageBox(message);
}

// What was announced before a line failed is moved all the same, or it would be announced again.
void moveMarked(PlannerWindow& window, const std::vector<int>& marked) {
  int moved = 0;
  for (const int row : marked) moveToOld(window, row - moved++);
}

// When the desktop ends the program nobody has read what stands on the screen: it stays for the next check.
bool isAnswered(const PlannerParts& parts) { return parts.window.mayAsk; }

void announceAllMissed(const PlannerParts& parts, std::vector<int>& marked) {
  const base::DateTime now = parts.platform.now();
  const base::ItemList& lines = parts.window.Liste.items;
  for (int row = 0; lines.holds(row); ++row) {
    if (!isEarlier(momentOf(lines[row]), now)) continue;
    marked.push_back(row);
    announceMissed(parts, std::string(lines[row]));
    if (!isAnswered(parts)) return marked.pop_back();
  }
}

void announceDue(const PlannerParts& parts, const std::string& line) {
  if (parts.window.Check_Beep.checked) soundSignal(parts, parts.reminderSound);
  const base::DateTime now = parts.platform.now();
  parts.reminder.caption =
      "Erinnerung am " + parts.platform.regionalDate(now) + " um " + parts.platform.regionalTime(now);
  parts.reminder.lblTermin.text = announcementOf(line);
  parts.reminder.lblText.text = toldText(line);
  parts.platform.notify({announcementOf(line), toldText(line)});
  parts.platform.showModal(parts.reminder);
}

// Of several in one minute each is announced: the next one takes the row of the one that went.
void announceAllDue(const PlannerParts& parts, const std::string& key) {
  base::ItemList& lines = parts.window.Liste.items;
  const int count = lines.size();
  for (int seen = 0, row = 0; seen < count && lines.holds(row); ++seen) {
    if (!std::string_view(lines[row]).starts_with(key)) {
      ++row;
      continue;
    }
    announceDue(parts, std::string(lines[row]));
    if (!isAnswered(parts)) return;
    moveToOld(parts.window, row);
    Schreibe_neue_Liste(parts.window, parts.paths.appointments());
    Liste_füllen(parts.window, parts.paths.appointments());
  }
}

// A minute that passed between two ticks, behind a reminder that was left open or a computer asleep.
bool hasMissedMinutes(PlannerWindow& window, const base::DateTime& now) {
  const auto last = std::exchange(window.lastTick, now);
  return last && minutesBetween(*last, now) > 1;
}

void tick(const PlannerParts& parts) {
  PlannerWindow& window = parts.window;
  if (window.isAnnouncing) return;
  const Announcing announcing(window);
  const base::DateTime now = parts.platform.now();
  const bool missesMinutes = hasMissedMinutes(window, now);
  parts.platform.refresh();
  announceAllDue(parts, keyOf(now, parts.platform.dateFormat()));
  if (missesMinutes) {
    Alte_Einträge_löschen(parts);
    Schreibe_neue_Liste(window, parts.paths.appointments());
  }
  showIndicator(parts);
}

bool isOn(const base::Platform& platform, std::string_view key) {
  return base::wholeNumber(platform.userSetting(key).value_or("0")).value_or(0) != 0;
}

}  // namespace

bool Soundkarte_vorhanden(const base::Platform& platform) { return platform.soundDevices() >= 1; }

void Sound_abspielen(base::Platform& platform, const std::string& path) {
  Sound_stoppen(platform);
  if (!platform.openSound(path)) platform.beep();
  errors::skipping([&] { platform.playSound(); });
}

void Sound_stoppen(base::Platform& platform) {
  errors::skipping([&] { platform.stopSound(); });
  errors::skipping([&] { platform.closeSound(); });
}

void Alte_Einträge_löschen(const PlannerParts& parts) {
  const Announcing announcing(parts.window);
  std::vector<int> marked;
  errors::reporting(parts.reporter, kCheckTag, [&] { announceAllMissed(parts, marked); });
  moveMarked(parts.window, marked);
  showIndicator(parts);
}

void readAndCheck(const PlannerParts& parts) {
  const std::string file = parts.paths.appointments();
  Liste_füllen(parts.window, file);
  Alte_Einträge_löschen(parts);
  Schreibe_neue_Liste(parts.window, file);
  Liste_füllen(parts.window, file);
}

void readSwitches(const PlannerParts& parts) {
  parts.window.Check_Beep.checked = isOn(parts.platform, "AlarmAktiv");
  parts.window.Check_Start.checked = isOn(parts.platform, "TermineBeimStart");
}

// The timer runs first: what falls due behind an announcement is one of the minutes that it missed. A file that cannot
// be written does not keep it from watching.
void checkAtStart(const PlannerParts& parts) {
  readSwitches(parts);
  if (!parts.window.Check_Start.checked) return;
  arm(parts.window, parts.platform);
  errors::reporting(parts.reporter, kCheckTag, [&] { readAndCheck(parts); });
  if (parts.window.Liste.items.empty()) parts.window.Timer1 = {};
}

void arm(PlannerWindow& window, const base::Platform& platform) {
  if (!window.Timer1.running) window.lastTick = platform.now();
  window.Timer1 = {.running = true, .intervalMilliseconds = kTickMilliseconds};
}

void showIndicator(const PlannerParts& parts) { parts.indicator.visible = !parts.window.Liste.items.empty(); }

void wireReminders(base::Wiring& wiring, const PlannerParts& parts) {
  wiring.on(parts.window.Timer1, base::Event::tick,
            [parts] { errors::reporting(parts.reporter, kTimerTag, [&] { tick(parts); }); });
  wiring.on(parts.reminder.command1, base::Event::click, [parts] { parts.platform.close(parts.reminder); });
}

}  // namespace planner
