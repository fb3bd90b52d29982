// The world as the desktop shows it.
#include "ui/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <utility>

#include "base/failure.h"
#include "base/rich_text.h"
#include "qtcore/clock.h"
#include "qtcore/locale.h"
#include "qtcore/user_settings.h"
#include "qttext/pdf.h"
#include "ui/appearance.h"
#include "ui/desktop_notification.h"
#include "ui/desktop_tools.h"
#include "ui/format_dialogs.h"
#include "ui/system_information.h"
#include "ui/text/clipboard_formats.h"
#include "ui/utf8.h"
#include "ui/volumes.h"

namespace ui {
namespace {

QMessageBox::Icon icon(base::MessageIcon icon) {
  switch (icon) {
    case base::MessageIcon::information:
      return QMessageBox::Information;
    case base::MessageIcon::question:
      return QMessageBox::Question;
    case base::MessageIcon::exclamation:
      return QMessageBox::Warning;
    case base::MessageIcon::stop:
      return QMessageBox::Critical;
    case base::MessageIcon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttons(base::MessageButtons buttons) {
  switch (buttons) {
    case base::MessageButtons::yesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case base::MessageButtons::yesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case base::MessageButtons::ok:
      break;
  }
  return QMessageBox::Ok;
}

// A box that goes without a button, as at the end of the program, has not been agreed to.
base::MessageAnswer answer(int button, base::MessageButtons buttons) {
  if (buttons == base::MessageButtons::ok) return base::MessageAnswer::ok;
  if (button == QMessageBox::Yes) return base::MessageAnswer::yes;
  const bool hasCancel = buttons == base::MessageButtons::yesNoCancel;
  return hasCancel && button != QMessageBox::No ? base::MessageAnswer::cancel : base::MessageAnswer::no;
}

// "Name|*.rtf|Alle|*.*" as the toolkit writes it: "Name (*.rtf);;Alle (*)". Patterns match in either case.
QString nameFilters(const std::string& filter) {
  QStringList result;
  const QStringList parts = toQString(filter).split(QLatin1Char('|'));
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString name = parts[i].section(QStringLiteral(" ("), 0, 0);
    const QString& pattern = parts[i + 1];
    const QString both = pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern + ' ' + pattern.toUpper();
    result += name + QStringLiteral(" (") + both + ')';
  }
  return result.join(QStringLiteral(";;"));
}

// In the working directory, where the toolkit would rather remember a place of its own.
QString start(const std::string& suggestion) { return QDir::current().filePath(toQString(suggestion)); }

// The next dialog starts where this one ended.
std::string chosen(const QString& path) {
  if (path.isEmpty()) throw base::Failure(base::ErrorNumber::cancelled);
  QDir::setCurrent(QFileInfo(path).absolutePath());
  return toUtf8(path);
}

// The hourglass for the time that this lives; an end by a failure does not leave it on.
class Busy {
 public:
  explicit Busy(QtPlatform& platform) : platform_(platform) { platform.setHourglass(base::Hourglass::on); }
  ~Busy() { platform_.setHourglass(base::Hourglass::off); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  QtPlatform& platform_;
};

// The toolkit leaves less room beside the title than icon and buttons of most desktops' frames take.
void showWholeTitle(QMessageBox& box) {
  constexpr int kFrameLetters = 22;
  auto* const grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  QFont bold = box.font();
  bold.setBold(true);
  const int frame = kFrameLetters * box.fontMetrics().averageCharWidth();
  const int wanted = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + frame;
  grid->addItem(new QSpacerItem(wanted, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

base::MessageAnswer QtPlatform::messageBox(const base::Message& message) {
  if (isUnattended_) return answer(0, message.buttons);
  const Gate::ModalWait wait(gate_);
  setProgramIcon();
  QMessageBox box(icon(message.icon), toQString(message.title), inWrappedLines(message.text), buttons(message.buttons),
                  windows_.inFront());
  box.setTextFormat(Qt::PlainText);
  showWholeTitle(box);
  return answer(box.exec(), message.buttons);
}

std::optional<std::string> QtPlatform::inputBox(const base::InputQuestion& question) {
  constexpr int kColumns = 70;
  const Gate::ModalWait wait(gate_);
  QInputDialog dialog(windows_.inFront());
  dialog.setWindowTitle(toQString(question.title));
  dialog.setLabelText(toQString(question.text));
  dialog.setTextValue(toQString(question.suggestion));
  // A long question would make the box wider than a small screen.
  auto& label = *dialog.findChild<QLabel*>();
  label.setWordWrap(true);
  label.setMinimumWidth(kColumns * label.fontMetrics().averageCharWidth());
  return dialog.exec() == QDialog::Accepted ? std::optional(toUtf8(dialog.textValue())) : std::nullopt;
}

std::string QtPlatform::askOpenFile(const base::FileQuestion& question) {
  const Gate::ModalWait wait(gate_);
  return chosen(QFileDialog::getOpenFileName(windows_.inFront(), toQString(question.title), start(question.suggestion),
                                             nameFilters(question.filter)));
}

std::string QtPlatform::askSaveFile(const base::FileQuestion& question) {
  const Gate::ModalWait wait(gate_);
  return chosen(QFileDialog::getSaveFileName(windows_.inFront(), toQString(question.title), start(question.suggestion),
                                             nameFilters(question.filter), nullptr, QFileDialog::DontConfirmOverwrite));
}

base::CharFormat QtPlatform::askFont(const base::CharFormat& present) {
  const Gate::ModalWait wait(gate_);
  return chosenFont(present, windows_.inFront());
}

std::optional<base::Rgb> QtPlatform::askColour(std::optional<base::Rgb> present) {
  const Gate::ModalWait wait(gate_);
  return chosenColour(present, windows_.inFront());
}

void QtPlatform::show(base::Window& window) {
  lastRefresh_ = std::chrono::steady_clock::now();
  windows_.show(window);
}

// What comes during long work is seen by the input filter and dropped there; without the hourglass it waits outside.
void QtPlatform::refresh() {
  constexpr std::chrono::milliseconds kFrame(16);
  if (std::chrono::steady_clock::now() - lastRefresh_ < kFrame) return;
  windows_.showLateOnes();
  sync_.pass();
  QApplication::processEvents(gate_.isDropping()
                                  ? QEventLoop::ProcessEventsFlags(QEventLoop::ExcludeSocketNotifiers)
                                  : QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
  lastRefresh_ = std::chrono::steady_clock::now();
}

bool QtPlatform::escapePressed() {
  refresh();
  return input_.escapePressed();
}

base::DateTime QtPlatform::now() const { return clock_ ? clock_() : qtcore::now(); }

// In pixels of the screen, of which a scaled desktop counts fewer.
int QtPlatform::screenWidth() const {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  return qRound(screen.size().width() * screen.devicePixelRatio());
}

base::SystemInformation QtPlatform::systemInformation() const { return ui::systemInformation(); }

std::string QtPlatform::systemRoot() const { return "/usr"; }

std::vector<base::Volume> QtPlatform::volumes() const { return ui::volumes(); }

std::string QtPlatform::clipboardText() const {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  return data == nullptr ? std::string() : toUtf8(plainText(*data));
}

std::optional<base::Document> QtPlatform::clipboardDocument() const {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  return data == nullptr ? std::nullopt : formattedText(*data);
}

void QtPlatform::setClipboardText(std::string_view text) { QGuiApplication::clipboard()->setText(toQString(text)); }

void QtPlatform::setClipboard(const base::Document& document) {
  QGuiApplication::clipboard()->setMimeData(new DocumentMimeData(document));
}

bool QtPlatform::hasPrinter() {
  const Busy busy(*this);
  return Printing::hasPrinter();
}

void QtPlatform::print(const base::PrintJob& job) {
  std::optional<Gate::ModalWait> wait(gate_);
  std::optional<Busy> busy;
  const auto begun = [&] {
    wait.reset();
    busy.emplace(*this);
  };
  printing_.print(job, windows_.inFront(), begun, [this] { refresh(); });
}

void QtPlatform::printPreview(const base::PrintJob& job) {
  const Gate::ModalWait wait(gate_);
  printing_.preview(job, windows_.inFront());
}

void QtPlatform::printerSetUp() {
  const Gate::ModalWait wait(gate_);
  printing_.setUp(windows_.inFront());
}

std::string QtPlatform::pdf(const base::PrintJob& job) {
  const Busy busy(*this);
  return qttext::pdf(job, {}, [this] { refresh(); });
}

void QtPlatform::mail(const std::string& file, const std::string& subject) {
  const Busy busy(*this);
  composeMail(file, subject);
}

void QtPlatform::openFile(const std::string& file) {
  const Busy busy(*this);
  showFile(file);
}

std::optional<std::string> QtPlatform::userSetting(std::string_view key) const {
  return qtcore::storedUserSetting(key);
}

void QtPlatform::saveUserSettings(const std::vector<base::UserSetting>& settings) {
  qtcore::storeUserSettings(settings);
}

bool QtPlatform::runAside(const std::function<void()>& work) { return aside_.run(work); }

void QtPlatform::beep() { bell_ ? bell_() : QApplication::beep(); }

// What was typed ahead of the end of long work is dropped with it.
void QtPlatform::setHourglass(base::Hourglass hourglass) {
  const bool wanted = hourglass == base::Hourglass::on;
  if (wanted == hasHourglass_) return;
  hasHourglass_ = wanted;
  if (wanted) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    input_.forgetEscape();
  } else {
    if (gate_.isDropping()) QApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    QApplication::restoreOverrideCursor();
  }
  gate_.setWorking(wanted);
}

base::NumberFormat QtPlatform::numberFormat() const { return qtcore::userNumberFormat(); }

base::DateFormat QtPlatform::dateFormat() const { return qtcore::userDateFormat(); }

std::string QtPlatform::regionalDate(const base::DateTime& moment) const { return qtcore::regionalDate(moment); }

std::string QtPlatform::regionalTime(const base::DateTime& moment) const { return qtcore::regionalTime(moment); }

void QtPlatform::notify(const base::Notification& notification) { notifyDesktop(notification); }

std::string QtPlatform::composed(std::string_view text) const { return qtcore::composed(text); }

base::Dictionary* QtPlatform::dictionary() {
  const auto stem = dictionary_ ? std::nullopt : HunspellDictionary::installed();
  if (stem) dictionary_ = HunspellDictionary::read(*stem);
  return dictionary_.get();
}

std::vector<std::string> QtPlatform::fontFamilies() const {
  std::vector<std::string> families;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) families.push_back(toUtf8(family));
  }
  substituteMissing(base::CharFormat().family, families);
  return families;
}

}  // namespace ui
