// The bindings of labels, buttons, check boxes, menu entries and progress bars, tabs and pictures, and of windows
// themselves.
#include "ui/binding/binding_simple.h"

#include <QAction>
#include <QDropEvent>
#include <QEvent>
#include <QMetaProperty>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QVariant>
#include <QWindow>

#include "ui/utf8.h"

namespace ui {
namespace {

using base::Event;
using base::WindowState;

/// A progress bar of our own has a text, the toolkit's has a format.
const char* textProperty(const QObject& bar) {
  const QMetaObject& type = *bar.metaObject();
  return type.property(type.indexOfProperty("text")).isWritable() ? "text" : "format";
}

QString asText(const std::string& text) { return toQString(text); }

WindowState stateOf(const QWidget& form) {
  if (form.isMinimized()) return WindowState::minimised;
  return form.isMaximized() ? WindowState::maximised : WindowState::normal;
}

Qt::WindowStates withState(Qt::WindowStates states, WindowState state) {
  states &= ~(Qt::WindowMinimized | Qt::WindowMaximized);
  if (state == WindowState::minimised) return states | Qt::WindowMinimized;
  return state == WindowState::maximised ? states | Qt::WindowMaximized : states;
}

}  // namespace

LabelBinding::LabelBinding(base::Label& model, QLabel& widget, const Context& context)
    : BindingOf(model, widget, context), drawn_(widget.palette()) {
  widget.setTextFormat(Qt::PlainText);
  widget.setMouseTracking(true);
}

void LabelBinding::carryOwn() {
  if (text_.follow(model_.text)) {
    widget_.setText(widget_.wordWrap() ? inWrappedLines(model_.text) : inShownLines(model_.text));
  }
  if (colour_.follow(model_.colour)) showColour();
}

void LabelBinding::showColour() {
  // A palette passes on only what is set in it: all but this one colour goes on following the style and the desktop.
  QPalette palette = drawn_;
  if (model_.colour) palette.setColor(QPalette::WindowText, QColor::fromRgb(*model_.colour));
  widget_.setPalette(palette);
}

CommandBinding::CommandBinding(base::Control& model, const std::string& text, QObject& shown, const Context& context)
    : ControlBinding(model, shown, context), text_(text), shownText_(shown, "text", asText) {
  const auto click = [this] { userChange([this] { fire(Event::click); }); };
  if (auto* button = qobject_cast<QAbstractButton*>(&shown)) connect(button, &QAbstractButton::clicked, this, click);
  if (auto* action = qobject_cast<QAction*>(&shown)) connect(action, &QAction::triggered, this, click);
}

SwitchBinding::SwitchBinding(base::Control& model, bool& isOn, const std::string* text, QObject& shown,
                             const Context& context)
    : ControlBinding(model, shown, context),
      isOn_(isOn),
      text_(text),
      shown_(shown),
      shownText_(shown, "text", asText) {
  shown.setProperty("checkable", QVariant(true));
  // Switching comes before the click, and for an option button also to the one that is thereby switched off.
  const auto click = [this] { userChange([this] { fire(Event::click); }); };
  if (auto* button = qobject_cast<QAbstractButton*>(&shown)) {
    connect(button, &QAbstractButton::toggled, this, &SwitchBinding::take);
    connect(button, &QAbstractButton::clicked, this, click);
  }
  if (auto* action = qobject_cast<QAction*>(&shown)) {
    connect(action, &QAction::toggled, this, &SwitchBinding::take);
    connect(action, &QAction::triggered, this, click);
  }
}

void SwitchBinding::take(bool isOn) {
  userChange([this, isOn] {
    isOn_ = isOn;
    shownIsOn_.follow(isOn);
  });
}

void SwitchBinding::carryOwn() {
  if (text_ != nullptr) shownText_.carry(*text_);
  if (shownIsOn_.follow(isOn_)) shown_.setProperty("checked", isOn_);
}

ProgressBinding::ProgressBinding(base::ProgressBar& model, QWidget& widget, const Context& context)
    : BindingOf(model, widget, context), text_(widget, textProperty(widget), asText) {}

void ProgressBinding::carryOwn() {
  if (range_.follow({model_.minimum, model_.maximum})) {
    widget_.setProperty("minimum", model_.minimum);
    widget_.setProperty("maximum", model_.maximum);
    value_.forget();  // a bar may lose a value that falls out of its range
  }
  if (value_.follow(model_.value)) widget_.setProperty("value", model_.value);
  text_.carry(model_.text);
}

TabsBinding::TabsBinding(base::Tabs& model, QTabWidget& widget, const Context& context)
    : BindingOf(model, widget, context) {
  connect(&widget, &QTabWidget::currentChanged, this, [this](int index) {
    userChange([this, index] {
      model_.current = index;
      current_.follow(index);
      fire(Event::click);
    });
  });
}

void TabsBinding::carryOwn() {
  if (current_.follow(model_.current)) widget_.setCurrentIndex(model_.current);
}

WindowBinding::WindowBinding(base::Window& model, QWidget& form, const Context& context)
    : Binding(model, context), model_(model), form_(form), caption_(form, "windowTitle", asText) {
  form.installEventFilter(this);
  form.setAcceptDrops(true);
}

void WindowBinding::carry() {
  caption_.carry(model_.caption);
  if (state_.follow(model_.state)) form_.setWindowState(withState(form_.windowState(), model_.state));
  carryPlace();
}

// A window in front must not hide the dialog that it waits for. Setting the flag on the widget would hide the window
// and make a new one.
void WindowBinding::carryPlace() {
  const bool staysOnTop = model_.staysOnTop && !isBlocked_;
  if (!staysOnTop_.follow(staysOnTop)) return;
  form_.overrideWindowFlags(form_.windowFlags().setFlag(Qt::WindowStaysOnTopHint, staysOnTop));
  if (QWindow* const handle = form_.windowHandle()) handle->setFlags(form_.windowFlags());
}

bool WindowBinding::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowStateChange:
      model_.state = stateOf(form_);
      state_.follow(model_.state);
      return false;
    case QEvent::WindowBlocked:
    case QEvent::WindowUnblocked:
      isBlocked_ = event->type() == QEvent::WindowBlocked;
      carryPlace();
      return false;
    case QEvent::DragEnter:
    case QEvent::Drop:
      return takesFile(static_cast<QDropEvent&>(*event));
    case QEvent::Close:
      if (mayClose(model_, context())) return false;
      event->ignore();
      return true;
    default:
      return Binding::eventFilter(watched, event);
  }
}

// A drop comes as an arrival first. What is no single file goes on to the widgets.
bool WindowBinding::takesFile(QDropEvent& event) {
  const QString file = droppedFile(*event.mimeData());
  if (file.isEmpty() || !context().wiring.takesFiles(model_)) return false;
  event.setDropAction(Qt::CopyAction);
  event.accept();
  if (event.type() != QEvent::Drop) return true;
  // The program that the file comes from waits for the end of the drop, not for our questions.
  QTimer::singleShot(
      0, this, [this, file] { context().gate.userEvent([&] { context().wiring.fireFile(model_, toUtf8(file)); }); });
  return true;
}

QString droppedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

bool mayClose(base::Window& window, const Context& context) {
  window.keepsOpen = false;
  const bool isAsked = context.gate.userEvent([&] { context.wiring.fire(window, Event::closing); });
  return isAsked && !window.keepsOpen;
}

}  // namespace ui
