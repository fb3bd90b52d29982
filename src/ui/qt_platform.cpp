// The world as the desktop shows it.
#include "ui/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDialog>
#include <QFontDatabase>
#include <QMessageBox>
#include <QScreen>
#include <utility>

#include "base/failure.h"
#include "base/rich_text.h"
#include "qtcore/locale.h"
#include "ui/appearance.h"
#include "ui/system_information.h"
#include "ui/user_settings.h"
#include "ui/utf8.h"

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

base::MessageAnswer answer(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return base::MessageAnswer::yes;
    case QMessageBox::No:
      return base::MessageAnswer::no;
    case QMessageBox::Cancel:
      return base::MessageAnswer::cancel;
    default:
      return base::MessageAnswer::ok;
  }
}

// Only dialogs are shown modally.
QDialog& dialogOf(const ShownWindow& window) {
  auto* const dialog = qobject_cast<QDialog*>(window.widget);
  if (dialog == nullptr) throw base::Failure(base::ErrorNumber::internal);
  return *dialog;
}

}  // namespace

void QtPlatform::offerWindow(std::string_view name, std::function<ShownWindow()> build, Appears appears) {
  windows_.insert_or_assign(std::string(name), Entry{.build = std::move(build), .appears = appears, .window = {}});
}

QtPlatform::Entry& QtPlatform::entryOf(const base::Window& window) {
  const auto found = windows_.find(window.name);
  if (found == windows_.end()) throw base::Failure(base::ErrorNumber::internal);
  return found->second;
}

ShownWindow& QtPlatform::shown(const base::Window& window) {
  Entry& entry = entryOf(window);
  if (entry.window.widget == nullptr) entry.window = entry.build();
  return entry.window;
}

base::MessageAnswer QtPlatform::messageBox(const base::Message& message) {
  const Gate::ModalWait wait(gate_);
  QMessageBox box(icon(message.icon), toQString(message.title),
                  toQString(message.text).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace('\r', '\n'),
                  buttons(message.buttons), QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  return answer(box.exec());
}

void QtPlatform::showModal(base::Window& window) {
  const ShownWindow& form = shown(window);
  const Gate::ModalWait wait(gate_);
  sync_.open(*form.bindings);
  dialogOf(form).exec();
  sync_.close(*form.bindings);
}

// A window that is not modal asks first whether it may close, once the procedure that wants it has ended.
void QtPlatform::close(base::Window& window) {
  QWidget* const widget = shown(window).widget;
  if (auto* const dialog = qobject_cast<QDialog*>(widget)) {
    dialog->done(QDialog::Accepted);
  } else {
    QMetaObject::invokeMethod(widget, &QWidget::close, Qt::QueuedConnection);
  }
}

void QtPlatform::appear(Entry& entry) {
  if (entry.window.widget == nullptr) entry.window = entry.build();
  sync_.open(*entry.window.bindings);
  entry.window.widget->show();
}

void QtPlatform::show(base::Window& window) {
  Entry& entry = entryOf(window);
  lastRefresh_ = std::chrono::steady_clock::now();
  if (entry.appears == Appears::whenItTakesLonger) {
    waiting_ = &entry;
  } else {
    appear(entry);
  }
}

void QtPlatform::hide(base::Window& window) {
  Entry& entry = entryOf(window);
  if (waiting_ == &entry) waiting_ = nullptr;
  if (entry.window.widget == nullptr) return;
  entry.window.widget->hide();
  sync_.close(*entry.window.bindings);
}

void QtPlatform::refresh() {
  constexpr std::chrono::milliseconds kFrame(16);
  const auto moment = std::chrono::steady_clock::now();
  if (moment - lastRefresh_ < kFrame) return;
  if (waiting_ != nullptr) appear(*std::exchange(waiting_, nullptr));
  sync_.pass();
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
  lastRefresh_ = std::chrono::steady_clock::now();
}

base::DateTime QtPlatform::now() const {
  const QDateTime moment = QDateTime::currentDateTime();
  const QDate date = moment.date();
  const QTime time = moment.time();
  return {.year = date.year(),
          .month = date.month(),
          .day = date.day(),
          .hour = time.hour(),
          .minute = time.minute(),
          .second = time.second()};
}

// In pixels of the screen, of which a scaled desktop counts fewer.
int QtPlatform::screenWidth() const {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  return qRound(screen.size().width() * screen.devicePixelRatio());
}

base::SystemInformation QtPlatform::systemInformation() const { return ui::systemInformation(); }

std::string QtPlatform::systemRoot() const { return "/usr"; }

std::string QtPlatform::clipboardText() const { return toUtf8(QGuiApplication::clipboard()->text()); }

void QtPlatform::setClipboardText(std::string_view text) { QGuiApplication::clipboard()->setText(toQString(text)); }

std::optional<std::string> QtPlatform::userSetting(std::string_view key) const { return storedUserSetting(key); }

void QtPlatform::saveUserSettings(const std::vector<base::UserSetting>& settings) { storeUserSettings(settings); }

void QtPlatform::beep() { QApplication::beep(); }

void QtPlatform::setHourglass(base::Hourglass hourglass) {
  const bool wanted = hourglass == base::Hourglass::on;
  if (wanted && !hasHourglass_) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (!wanted && hasHourglass_) QApplication::restoreOverrideCursor();
  hasHourglass_ = wanted;
}

base::NumberFormat QtPlatform::numberFormat() const { return qtcore::userNumberFormat(); }

std::string QtPlatform::composed(std::string_view text) const { return qtcore::composed(text); }

std::vector<std::string> QtPlatform::fontFamilies() const {
  std::vector<std::string> families;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) families.push_back(toUtf8(family));
  }
  substituteMissing(base::CharFormat().family, families);
  return families;
}

}  // namespace ui
