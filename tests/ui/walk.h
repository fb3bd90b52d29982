// A walk through the program as it is composed for the desktop: started in directories of its own and worked by keys
// and clicks alone.
#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "support/temporary_directory.h"
#include "ui/desktop.h"

namespace ui {

/// What a walk leaves behind on disk outlives the walk, so that the next one finds it.
struct Premises {
  Premises();

  support::TemporaryDirectory directory;
  std::string data = directory.path("daten");
  /// A file of the program directory; empty when it is missing.
  [[nodiscard]] std::string file(const std::string& name) const { return directory.read("daten/" + name); }
  [[nodiscard]] std::string userStore() const { return directory.read("config/Tessik/Tessik.conf"); }
  void write(const std::string& name, std::string_view bytes) const;
};

/// A shop that has been set up: prices, surcharges and discounts, and a version that has started before.
struct Shop : Premises {
  Shop();
};

/// The text of a PDF file as it is laid out, a form feed behind each page.
QString pdfText(const std::string& file);

/// Enters a name into a file dialog of the toolkit, which starts in the working directory, and agrees.
void chooseFile(QDialog& dialog, const QString& file);

class Walk {
 public:
  /// Starts the program up to its main window. `questions` that come before it are to be expected by then.
  explicit Walk(const Premises& premises, const std::function<void(Walk&)>& expectations = {});
  /// Fails when a question was expected that never came.
  ~Walk();

  /// The person before the next modal window; it is gone when `act` has returned and events were processed.
  void whenAsked(std::function<void(QDialog&)> act) { expected_.push_back(std::move(act)); }
  /// The next box says `text` (or contains it) and is answered by `button`.
  void expectBox(const QString& text, QMessageBox::StandardButton button);

  /// The walk goes on in this window; names mean its widgets from now on.
  void turnTo(const base::Window& window);

  template <typename Widget>
  Widget& widget(const char* name) {
    auto* const found = form_->findChild<Widget*>(QString::fromUtf8(name));
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }
  /// The text of a label, a text box, a combo box or the document.
  std::string text(const char* name);
  bool enabled(const char* name) { return widget<QWidget>(name).isEnabled(); }

  void click(const char* name);
  /// Types at the focus as a keyboard does.
  void type(const QString& text);
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Clicks into the field, marks what it holds and types over it.
  void fill(const char* name, const QString& text);
  /// Opens the list of a combo box by its key and takes the row by the arrows and Enter.
  void choose(const char* name, int row);
  /// What has the focus.
  static std::string focus();

  /// The main window's close button, up to the end of the program.
  void close();
  /// The same, with lettering that nobody wants to keep.
  void leave();
  void settle();

  std::unique_ptr<Desktop> desktop;
  int beeps = 0;

 private:
  void answerQuestions();

  std::deque<std::function<void(QDialog&)>> expected_;
  QTimer person_;
  QWidget* form_ = nullptr;         // of the window that the walk is in
  std::vector<QDialog*> busyWith_;  // the windows before which the person is acting
};

}  // namespace ui
