// Keeps the user's input from a widget while the gate is shut.
//
// A bound widget is set back to its model after an event that the gate dropped. A widget that is its own model, such
// as the document, cannot be; it must not receive the input in the first place.
#pragma once

#include <QEvent>
#include <QObject>

#include "ui/binding/gate.h"

namespace ui {

class InputGuard : public QObject {
 public:
  InputGuard(const Gate& gate, QObject& guarded) : QObject(&guarded), gate_(gate) { guarded.installEventFilter(this); }

 private:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (gate_.isOpen()) return false;
    switch (event->type()) {
      case QEvent::KeyPress:
      case QEvent::InputMethod:
      case QEvent::Drop:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
      case QEvent::Wheel:
      case QEvent::ContextMenu:
        return true;
      default:
        return false;
    }
  }

  const Gate& gate_;
};

}  // namespace ui
