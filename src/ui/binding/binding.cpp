// What ties one model to what shows it.
#include "ui/binding/binding.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QVariant>
#include <utility>

#include "ui/appearance.h"
#include "ui/utf8.h"

namespace ui {
namespace {

using base::Event;

/// The event of a key that has a meaning of its own. With a modifier it has another one: Shift+Insert pastes.
std::optional<Event> eventOf(const QKeyEvent& key) {
  const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
  const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if (isEnter && modifiers == Qt::ShiftModifier) return Event::keyShiftEnter;
  if (modifiers != Qt::NoModifier) return std::nullopt;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Event::keyEnter;
    case Qt::Key_Insert:
      return Event::keyInsert;
    case Qt::Key_Delete:
      return Event::keyDelete;
    case Qt::Key_Escape:
      return Event::keyEscape;
    default:
      return std::nullopt;
  }
}

bool isModifier(const QKeyEvent& key) {
  return (key.key() >= Qt::Key_Shift && key.key() <= Qt::Key_ScrollLock) || key.key() == Qt::Key_AltGr;
}

/// Whether the user took the focus away, not the program, a menu that pops up or another window.
bool isUsersChoice(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::MouseFocusReason ||
         reason == Qt::ShortcutFocusReason;
}

}  // namespace

QString plainToolTip(const std::string& text) { return shownAsPlainText(toQString(text)); }

DrawnText::DrawnText(QObject& shown, const char* property, AsShown asShown)
    : shown_(shown), property_(property), asShown_(asShown), drawn_(shown.property(property).toString()) {}

void DrawnText::carry(const std::string& text) {
  if (text_.follow(text)) shown_.setProperty(property_, text.empty() ? drawn_ : asShown_(text));
}

void Binding::userChange(const Gate::Procedure& take) {
  if (context_.gate.isWriting()) return;
  if (!context_.gate.userEvent(take)) distrust();
}

bool Binding::answers(Event event) {
  if (!handles(event)) return false;
  context_.gate.userEvent([this, event] { fire(event); });
  return true;
}

bool Binding::answersCharacter(const QKeyEvent& key) {
  if (!context_.wiring.handlesKeys(source_) || key.text().isEmpty()) return false;
  bool isUsed = false;
  context_.gate.userEvent([&] { isUsed = context_.wiring.fireKey(source_, key.text().toUcs4().first()); });
  return isUsed;
}

bool Binding::answersKeyDown(const QKeyEvent& key) {
  if (answersCharacter(key)) return true;
  const auto own = eventOf(key);
  if (!own) return false;
  // Held down, a key that takes rows away would take them all.
  const bool repeats = keyRepeat_.isRepeat(key) && (*own == Event::keyDelete || *own == Event::keyInsert);
  return repeats ? handles(*own) : answers(*own);
}

void Binding::answerKeyUp(const QKeyEvent& key) {
  keyRepeat_.released(key);
  if (!eventOf(key) && !isModifier(key)) answers(Event::keyOther);
}

void Binding::answerLeaving(const QFocusEvent& focus) {
  if (isUsersChoice(focus.reason())) answers(Event::leaving);
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride: {
      const auto own = eventOf(static_cast<const QKeyEvent&>(*event));
      if (!own || !handles(*own)) return false;
      event->accept();
      return true;
    }
    case QEvent::KeyPress:
      return answersKeyDown(static_cast<const QKeyEvent&>(*event));
    case QEvent::KeyRelease:
      answerKeyUp(static_cast<const QKeyEvent&>(*event));
      return false;
    case QEvent::MouseButtonPress:
      return static_cast<const QMouseEvent&>(*event).button() == Qt::RightButton && answers(Event::rightPress);
    case QEvent::MouseMove:
      answers(Event::mouseMove);
      return false;
    case QEvent::ContextMenu:
      // The mouse has been answered when it went down; the menu key has not.
      if (!handles(Event::rightPress)) return false;
      if (static_cast<const QContextMenuEvent&>(*event).reason() == QContextMenuEvent::Keyboard) {
        answers(Event::rightPress);
      }
      return true;
    case QEvent::FocusOut:
      answerLeaving(static_cast<const QFocusEvent&>(*event));
      return false;
    default:
      return QObject::eventFilter(watched, event);
  }
}

ControlBinding::ControlBinding(base::Control& control, QObject& shown, const Context& context)
    : Binding(control, context), control_(control), shown_(shown), toolTip_(shown, "toolTip", plainToolTip) {
  shown.installEventFilter(this);
}

void ControlBinding::carry() {
  if (enabled_.follow(control_.enabled)) shown_.setProperty("enabled", control_.enabled);
  if (visible_.follow(control_.visible)) shown_.setProperty("visible", control_.visible);
  toolTip_.carry(control_.toolTip);
  carryOwn();
  if (!std::exchange(control_.wantsFocus, false)) return;
  if (auto* widget = qobject_cast<QWidget*>(&shown_)) widget->setFocus(Qt::OtherFocusReason);
}

}  // namespace ui
