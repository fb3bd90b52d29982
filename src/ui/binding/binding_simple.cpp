// The bindings of labels, buttons, check boxes, menu entries and progress bars, of timers and of windows themselves.
#include "ui/binding/binding_simple.h"

#include <QAction>
#include <QEvent>
#include <QMetaProperty>
#include <QVariant>

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
}

void LabelBinding::carryOwn() {
  if (text_.follow(model_.text)) widget_.setText(toQString(model_.text));
  if (colour_.follow(model_.colour)) showColour();
}

void LabelBinding::showColour() {
  // A palette passes on only what is set in it: all but this one colour goes on following the style and the desktop.
  QPalette palette = drawn_;
  if (model_.colour) palette.setColor(QPalette::WindowText, QColor::fromRgb(*model_.colour));
  widget_.setPalette(palette);
}

CommandBinding::CommandBinding(base::Control& model, const std::string& text, QObject& shown, const Context& context)
    : ControlBinding(model, shown, context), text_(text), shownText_(shown, "text") {
  const auto click = [this] { userChange([this] { fire(Event::click); }); };
  if (auto* button = qobject_cast<QAbstractButton*>(&shown)) connect(button, &QAbstractButton::clicked, this, click);
  if (auto* action = qobject_cast<QAction*>(&shown)) connect(action, &QAction::triggered, this, click);
}

SwitchBinding::SwitchBinding(base::Control& model, bool& isOn, const std::string* text, QObject& shown,
                             const Context& context)
    : ControlBinding(model, shown, context), isOn_(isOn), text_(text), shown_(shown), shownText_(shown, "text") {
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
    : BindingOf(model, widget, context), text_(widget, textProperty(widget)) {}

void ProgressBinding::carryOwn() {
  if (range_.follow({model_.minimum, model_.maximum})) {
    widget_.setProperty("minimum", model_.minimum);
    widget_.setProperty("maximum", model_.maximum);
    value_.forget();  // a bar may lose a value that falls out of its range
  }
  if (value_.follow(model_.value)) widget_.setProperty("value", model_.value);
  text_.carry(model_.text);
}

TimerBinding::TimerBinding(base::Timer& model, const Context& context) : Binding(model, context), model_(model) {
  connect(&timer_, &QTimer::timeout, this, &TimerBinding::tick);
}

void TimerBinding::tick() {
  isWaiting_ = model_.running && !context().gate.timerEvent([this] {
    isWaiting_ = false;
    fire(Event::tick);
  });
}

void TimerBinding::carry() {
  if (shown_.follow(model_)) {
    timer_.stop();
    if (model_.running && model_.intervalMilliseconds > 0) timer_.start(model_.intervalMilliseconds);
  }
  if (isWaiting_) QTimer::singleShot(0, this, &TimerBinding::tickAtLast);
}

void TimerBinding::tickAtLast() {
  if (isWaiting_) tick();
}

WindowBinding::WindowBinding(base::Window& model, QWidget& form, const Context& context)
    : Binding(model, context), model_(model), form_(form), caption_(form, "windowTitle") {
  form.installEventFilter(this);
}

void WindowBinding::carry() {
  caption_.carry(model_.caption);
  if (state_.follow(model_.state)) form_.setWindowState(withState(form_.windowState(), model_.state));
}

bool WindowBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) {
    model_.state = stateOf(form_);
    state_.follow(model_.state);
  }
  return Binding::eventFilter(watched, event);
}

}  // namespace ui
