// A walk through the program as it is composed for the desktop.
#include "walk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QProcess>
#include <QSettings>
#include <QTextEdit>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "ui/utf8.h"

namespace ui {
namespace {

constexpr int kPatience = 5000;  // milliseconds until what never comes is missed

constexpr std::string_view kGeneral =
    "[Einstellungen]\r\nMwst=16\r\nMaßeinheit=mm\r\nIndex1=2\r\nIndex2=2\r\nTVorn=0\r\nLZ=1\r\nSnd=x.wav\r\n";
constexpr std::string_view kLists =
    "[Einstellungen]\r\nIndexp1=1\r\nIndexp2=0\r\n[Rabatte]\r\n10 %\r\n5.00 EUR\r\n[RabatteTip]\r\nEil\r\nWeg\r\n"
    "[Rabatte2]\r\n3 %\r\n2 %\r\n[RabatteTip2]\r\nStamm\r\nBar\r\n";
constexpr std::string_view kPrices = "[Versalien]\r\n0=20\r\n1=50\r\n[Preise]\r\n0=1,00\r\n1=2,00\r\n";

QWidget& focused() {
  QWidget* const widget = QApplication::focusWidget();
  return widget != nullptr ? *widget : *QApplication::activeWindow();
}

}  // namespace

Premises::Premises() {
  std::filesystem::create_directory(data);
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(directory.path("config")));
}

void Premises::write(const std::string& name, std::string_view bytes) const { directory.write("daten/" + name, bytes); }

QString pdfText(const std::string& file) {
  QProcess reader;
  reader.start("pdftotext", {"-layout", toQString(file), "-"});
  EXPECT_TRUE(reader.waitForFinished());
  return QString::fromUtf8(reader.readAllStandardOutput());
}

Shop::Shop() {
  write("Ostrowerk.ini", kGeneral);
  write("Tessik.ini", kLists);
  write("Tessik.pdb", kPrices);
  std::filesystem::create_directories(directory.path("config/Tessik"));
  directory.write("config/Tessik/Tessik.conf", "[Prog]\nVersion=1.4\nWinState=0\n");
}

void chooseFile(QDialog& dialog, const QString& file) {
  auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
  ASSERT_NE(name, nullptr) << dialog.windowTitle().toStdString();
  name->setFocus();
  name->selectAll();
  name->insert(file);  // typed, the dialog would propose something else
  QTest::keyClick(name, Qt::Key_Return);
}

Walk::Walk(const Premises& premises, const std::function<void(Walk&)>& expectations) {
  QObject::connect(&person_, &QTimer::timeout, [this] { answerQuestions(); });
  person_.start(1);
  if (expectations) expectations(*this);
  desktop = std::make_unique<Desktop>(lifecycle::ProgramDirectory{.path = premises.data});
  form_ = &desktop->mainForm();
  desktop->platform().setBell([this] { ++beeps; });
  EXPECT_EQ(desktop->load(), lifecycle::StartUp::goesOn);
  EXPECT_TRUE(QTest::qWaitFor([this] { return desktop->mainForm().isVisible(); }, kPatience));
  turnTo(desktop->program().windows.main);
}

Walk::~Walk() { EXPECT_TRUE(expected_.empty()) << expected_.size() << " questions never asked"; }

// One modal window after the other, each by the next of what is expected; an unexpected one fails and is closed.
void Walk::answerQuestions() {
  auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible()) return;
  if (std::find(busyWith_.begin(), busyWith_.end(), dialog) != busyWith_.end()) return;
  // A person waits for the window to have the keys.
  if (!dialog->isActiveWindow()) return QApplication::setActiveWindow(dialog);
  if (expected_.empty()) {
    const auto* const box = qobject_cast<QMessageBox*>(dialog);
    ADD_FAILURE() << "not expected: " << toUtf8(box != nullptr ? box->text() : dialog->windowTitle());
    dialog->done(QDialog::Rejected);
    return;
  }
  // Outside the timer's own event, so that it goes on ticking for what `act` opens in its turn.
  busyWith_.push_back(dialog);
  const auto act = [this, dialog, expected = std::move(expected_.front())] {
    expected(*dialog);
    // Once what the last click asked for has happened, such as the end of the dialog.
    QMetaObject::invokeMethod(
        &person_, [this, dialog] { std::erase(busyWith_, dialog); }, Qt::QueuedConnection);
  };
  expected_.pop_front();
  QMetaObject::invokeMethod(dialog, act, Qt::QueuedConnection);
}

void Walk::expectBox(const QString& text, QMessageBox::StandardButton button) {
  whenAsked([text, button](QDialog& dialog) {
    auto* const box = qobject_cast<QMessageBox*>(&dialog);
    ASSERT_NE(box, nullptr) << toUtf8(dialog.windowTitle());
    EXPECT_TRUE(box->text().contains(text)) << toUtf8(box->text());
    ASSERT_NE(box->button(button), nullptr) << toUtf8(box->text());
    QTest::mouseClick(static_cast<QWidget*>(box->button(button)), Qt::LeftButton);
  });
}

void Walk::turnTo(const base::Window& window) {
  form_ = &desktop->formOf(window);
  QApplication::setActiveWindow(form_);
  EXPECT_TRUE(QTest::qWaitForWindowActive(form_, kPatience));
}

std::string Walk::text(const char* name) {
  auto& shown = widget<QWidget>(name);
  if (const auto* const combo = qobject_cast<QComboBox*>(&shown)) return toUtf8(combo->currentText());
  if (const auto* const document = qobject_cast<QTextEdit*>(&shown)) return toUtf8(document->toPlainText());
  return toUtf8(shown.property("text").toString());
}

void Walk::click(const char* name) {
  QTest::mouseClick(&widget<QWidget>(name), Qt::LeftButton);
  settle();
}

void Walk::type(const QString& text) {
  for (const char32_t key : text.toUcs4()) {
    QTest::sendKeyEvent(QTest::Click, &focused(), Qt::Key_unknown, QString::fromUcs4(&key, 1), Qt::NoModifier);
  }
  settle();
}

void Walk::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  // By way of the window, so that shortcuts act as well.
  QWidget& window = *focused().window();
  QTest::keyClick(window.windowHandle(), key, modifiers);
  settle();
}

void Walk::fill(const char* name, const QString& text) {
  click(name);
  press(Qt::Key_A, Qt::ControlModifier);
  type(text);
}

void Walk::choose(const char* name, int row) {
  auto& box = widget<QComboBox>(name);
  box.setFocus(Qt::TabFocusReason);
  press(Qt::Key_Home);
  for (int i = 0; i < row; ++i) press(Qt::Key_Down);
}

std::string Walk::focus() {
  const QWidget* const widget = QApplication::focusWidget();
  return widget == nullptr ? std::string() : toUtf8(widget->objectName());
}

void Walk::close() {
  QMetaObject::invokeMethod(&desktop->mainForm(), &QWidget::close, Qt::QueuedConnection);
  EXPECT_TRUE(QTest::qWaitFor([this] { return desktop->hasEnded(); }, kPatience));
}

void Walk::leave() {
  expectBox("Möchten Sie die Änderungen speichern?", QMessageBox::No);
  close();
}

// Without a window manager nobody else brings the window back to the front.
void Walk::settle() {
  QCoreApplication::processEvents();
  const QWidget* const active = QApplication::activeWindow();
  if (active != nullptr && active->isVisible()) return;
  QApplication::setActiveWindow(form_->isVisible() ? form_ : &desktop->mainForm());
}

}  // namespace ui
