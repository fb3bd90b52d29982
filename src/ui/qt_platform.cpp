// The world as the desktop shows it.
#include "ui/qt_platform.h"

#include <QApplication>
#include <QDialog>
#include <QFontDatabase>
#include <QMessageBox>

#include "base/failure.h"
#include "qtcore/locale.h"
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

}  // namespace

void QtPlatform::offerWindow(std::string_view name, std::function<ShownWindow()> build) {
  windows_.insert_or_assign(std::string(name), Entry{.build = std::move(build), .window = {}});
}

ShownWindow& QtPlatform::shown(const base::Window& window) {
  const auto found = windows_.find(window.name);
  if (found == windows_.end()) throw base::Failure(base::ErrorNumber::invalidCall);
  Entry& entry = found->second;
  if (entry.window.dialog == nullptr) entry.window = entry.build();
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
  form.dialog->exec();
  sync_.close(*form.bindings);
}

void QtPlatform::close(base::Window& window) { shown(window).dialog->done(QDialog::Accepted); }

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
  return families;
}

}  // namespace ui
