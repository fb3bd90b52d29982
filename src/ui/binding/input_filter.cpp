// The filter that keeps input from the widgets while a procedure runs.
#include "ui/binding/input_filter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace ui {
namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

// What tells nobody anything later: an answer that is wanted now, or a place that the pointer has left.
bool isOfTheMoment(QEvent::Type type) {
  return type == QEvent::ShortcutOverride || type == QEvent::MouseMove || type == QEvent::DragEnter ||
         type == QEvent::DragMove || type == QEvent::Drop;
}

bool isRelease(QEvent::Type type) {
  return type == QEvent::KeyRelease || type == QEvent::MouseButtonRelease || type == QEvent::TouchEnd;
}

bool isEscape(const QEvent& event) {
  return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

const QWidget* windowOf(const QObject* receiver) {
  if (const auto* const widget = qobject_cast<const QWidget*>(receiver)) return widget->window();
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto found =
      std::find_if(windows.begin(), windows.end(), [=](QWidget* each) { return each->windowHandle() == receiver; });
  return found == windows.end() ? nullptr : *found;
}

// Whether a dialog keeps input from the receiver, as the toolkit does with what comes fresh.
bool isBehindDialog(const QObject* receiver) {
  const QWidget* const dialog = QApplication::activeModalWidget();
  const QWidget* window = dialog == nullptr ? nullptr : windowOf(receiver);
  if (window == nullptr) return false;
  while (window != dialog && window->parentWidget() != nullptr) window = window->parentWidget()->window();
  return window != dialog;
}

}  // namespace

InputFilter::InputFilter(const Gate& gate) : gate_(gate) { QCoreApplication::instance()->installEventFilter(this); }

bool InputFilter::eventFilter(QObject* watched, QEvent* event) {
  const bool followsHeld = isRelease(event->type()) && !held_.empty();
  if (isHeldEscape(*event)) return true;
  if (gate_.isOpen() || gate_.isWriting() || !(isInput(event->type()) || followsHeld)) return false;
  // A widget that closes is closed by the program; the person closes windows.
  if (event->type() == QEvent::Close && !watched->isWindowType()) return false;
  if (!gate_.isDropping() && !isOfTheMoment(event->type())) held_.emplace_back(watched, event->clone());
  drop(*event);
  return true;
}

// An Esc that ended long work and is still down shall not close the window behind that.
bool InputFilter::isHeldEscape(const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  if (key.key() != Qt::Key_Escape) return false;
  if (event.type() == QEvent::KeyRelease) escapeRepeat_.released(key);
  return event.type() == QEvent::KeyPress && escapePressed_ && escapeRepeat_.isRepeat(key);
}

void InputFilter::drop(QEvent& event) {
  if (gate_.isDropping() && isEscape(event)) escapePressed_ = true;
  // An accepted override keeps shortcuts from acting; a window whose closing is ignored stays.
  event.setAccepted(event.type() == QEvent::ShortcutOverride);
}

// One after the other, and past what waits behind a dialog: what is delivered runs a procedure, whose end asks for the
// next. Where that procedure waits in a dialog, those of the dialog ask for what is theirs.
void InputFilter::release() {
  if (releasingAt_ == gate_.depth()) return;
  const int outer = std::exchange(releasingAt_, gate_.depth());
  while (gate_.isOpen()) {
    const auto next =
        std::find_if(held_.begin(), held_.end(), [](const auto& each) { return !isBehindDialog(each.first); });
    if (next == held_.end()) break;
    const auto [receiver, event] = std::move(*next);
    held_.erase(next);
    if (receiver != nullptr) QCoreApplication::sendEvent(receiver, event.get());
  }
  releasingAt_ = outer;
}

}  // namespace ui
