// The one interface to the world outside: what the logic asks of the desktop, the machine and the person before it.
//
// Qt implements it for the screen, the terminal form for the command line, and tests script it. What an implementation
// does not have fails as "not available here" (error 68).
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls.h"
#include "base/date_time.h"
#include "base/dictionary.h"
#include "base/document.h"
#include "base/money.h"
#include "base/print_job.h"
#include "base/system_information.h"

namespace base {

enum class Hourglass { off, on };
enum class MessageIcon { none, information, question, exclamation, stop };
enum class MessageButtons { ok, yesNo, yesNoCancel };
enum class MessageAnswer { ok, yes, no, cancel };

struct Message {
  std::string text;
  std::string title = "Tessik";
  MessageIcon icon = MessageIcon::none;
  MessageButtons buttons = MessageButtons::ok;

  bool operator==(const Message&) const = default;
};

/// A question that is answered by a line of text.
struct InputQuestion {
  std::string text;
  std::string title = "Tessik";
  std::string suggestion;

  bool operator==(const InputQuestion&) const = default;
};

/// What a file dialog shows. `filter` is pairs of description and pattern, all parted by "|":
/// "RTF-Dokument (*.rtf)|*.rtf|Alle Dateien (*.*)|*.*".
struct FileQuestion {
  std::string title;
  std::string filter;
  std::string suggestion;  // a file name, or a whole path

  bool operator==(const FileQuestion&) const = default;
};

struct UserSetting {
  std::string key;
  std::string value;

  bool operator==(const UserSetting&) const = default;
};

/// What the desktop tells beside all windows.
struct Notification {
  std::string title;
  std::string text;

  bool operator==(const Notification&) const = default;
};

/// A place of the machine that holds files, under a name that people know it by.
struct Volume {
  std::string name;
  std::string path;  // of its topmost directory

  bool operator==(const Volume&) const = default;
};

class Platform {
 public:
  virtual ~Platform() = default;

  /// Asks and waits for the answer; closing the box answers No or Cancel, whichever it has, else Ok. So does the end of
  /// the program while it waits.
  virtual MessageAnswer messageBox(const Message& message);
  /// The line typed; nothing when the box was left without one.
  virtual std::optional<std::string> inputBox(const InputQuestion& question);
  /// The path chosen; leaving the dialog without one is a Failure (cancelled).
  virtual std::string askOpenFile(const FileQuestion& question);
  /// The path as it was chosen, whether or not such a file exists: asking about that is up to the caller.
  virtual std::string askSaveFile(const FileQuestion& question);
  /// What is left without a choice is a Failure (cancelled), as above. Script and colour come back as they went in.
  virtual CharFormat askFont(const CharFormat& present);
  /// None is the automatic colour.
  virtual std::optional<Rgb> askColour(std::optional<Rgb> present);

  /// Shows `window` and waits until it is closed. One that is open already comes to the front instead.
  virtual void showModal(Window& window);
  /// Shows `window` beside the others and goes on; one that is open already comes to the front.
  virtual void show(Window& window);
  /// Closes the window as the person would, once the procedure that asks for it has ended.
  virtual void close(Window& window);
  /// Takes the window from the screen without asking it.
  virtual void hide(Window& window);

  /// Brings what was written to the screen in the middle of long work, without letting input in. Cheap to call often:
  /// it paints at most 60 times a second.
  virtual void refresh();
  /// True once Esc was pressed since the hourglass was switched on. Refreshes as well.
  virtual bool escapePressed();
  /// While it shows, what the person types or clicks is dropped.
  virtual void setHourglass(Hourglass hourglass);

  /// Runs `work` beside the program, on a copy of everything as it is at this moment: what it does to memory does not
  /// come back, and nobody waits for it. One at a time: false when the one before has not ended.
  virtual bool runAside(const std::function<void()>& work);
  /// How the last one ended; nothing while it runs.
  [[nodiscard]] virtual std::optional<bool> asideSucceeded();
  /// Waits for it.
  virtual void awaitAside();

  /// The sound of a refused action.
  virtual void beep();
  /// How many devices can play a sound.
  [[nodiscard]] virtual int soundDevices() const;
  /// Opens a wave file, which takes the place of the one before; false when it cannot be played.
  virtual bool openSound(const std::string& path);
  /// Plays what is open and does not wait for its end.
  virtual void playSound();
  virtual void stopSound();
  virtual void closeSound();
  /// The path of a file that comes with the program, empty when it is missing.
  [[nodiscard]] virtual std::string ownFile(std::string_view name) const;

  /// Tells something urgent that stays until the person takes it away. Where the desktop has no place for that, nothing
  /// happens.
  virtual void notify(const Notification& notification);

  /// Moments of the local time.
  [[nodiscard]] virtual DateTime now() const;
  /// Of the screen that the program starts on, in pixels.
  [[nodiscard]] virtual int screenWidth() const;
  /// Asked when an error is recorded; it may take its time.
  [[nodiscard]] virtual SystemInformation systemInformation() const;
  /// The directory of the system's own files.
  [[nodiscard]] virtual std::string systemRoot() const;

  /// The user's own directory, the whole machine, then what is mounted beside them. None of them is touched for this.
  [[nodiscard]] virtual std::vector<Volume> volumes() const;

  /// The clipboard's text without its formats, empty when it holds none.
  [[nodiscard]] virtual std::string clipboardText() const;
  /// The same with formats; nothing when the clipboard brings none that we read.
  [[nodiscard]] virtual std::optional<Document> clipboardDocument() const;
  virtual void setClipboardText(std::string_view text);
  /// Offers text and formats, for whoever pastes to choose.
  virtual void setClipboard(const Document& document);

  /// Whether anything can be printed on. Asks the printing system, which may take its time.
  [[nodiscard]] virtual bool hasPrinter();
  /// Asks for printer and pages and prints; leaving the dialog is a Failure (cancelled).
  virtual void print(const PrintJob& job);
  /// Shows the pages in a window, from which they can be printed too, and waits until it is closed.
  virtual void printPreview(const PrintJob& job);
  /// Asks for the printer, its paper and the like, which stay until the program ends.
  virtual void printerSetUp();
  /// The pages as the bytes of a PDF file, which needs no printer.
  [[nodiscard]] virtual std::string pdf(const PrintJob& job);
  /// Opens a new message of the desktop's mail program with `file` attached. A desktop without one is a Failure.
  virtual void mail(const std::string& file, const std::string& subject);
  /// Shows `file` in the desktop's program for its kind. A desktop without one is a Failure.
  virtual void openFile(const std::string& file);

  /// A value of the user's own store (application Tessik, section "Prog"); nothing when the key is missing.
  [[nodiscard]] virtual std::optional<std::string> userSetting(std::string_view key) const;
  /// Stores values in their order; a store that cannot be written is a Failure.
  virtual void saveUserSettings(const std::vector<UserSetting>& settings);

  /// The separators of the user's locale.
  [[nodiscard]] virtual NumberFormat numberFormat() const;
  [[nodiscard]] virtual DateFormat dateFormat() const;
  /// The date and the time of day as the user's locale writes them.
  [[nodiscard]] virtual std::string regionalDate(const DateTime& moment) const;
  [[nodiscard]] virtual std::string regionalTime(const DateTime& moment) const;
  /// `text` in Unicode normalization form C.
  [[nodiscard]] virtual std::string composed(std::string_view text) const;
  /// The German dictionary, read when it is first asked for; null while there is none that can be read.
  [[nodiscard]] virtual Dictionary* dictionary();
  /// The typefaces of the screen, in the order in which they are offered.
  [[nodiscard]] virtual std::vector<std::string> fontFamilies() const;
};

}  // namespace base
