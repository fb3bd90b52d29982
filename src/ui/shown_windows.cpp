// The windows on the screen.
#include "ui/shown_windows.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <algorithm>
#include <utility>

#include "base/failure.h"

namespace ui {
namespace {

void bringToFront(QWidget& window) {
  // Without the first a minimised window stays so.
  window.setWindowState((window.windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  window.raise();
  window.activateWindow();
}

// Only dialogs are shown modally.
QDialog& dialogOf(QWidget& widget) {
  auto* const dialog = qobject_cast<QDialog*>(&widget);
  if (dialog == nullptr) throw base::Failure(base::ErrorNumber::internal);
  return *dialog;
}

}  // namespace

// The bindings first: they give the texts of the widgets back to their models. The main window, which the others belong
// to, goes last.
void ShownWindows::takeDown() {
  for (const auto& entry : entries_) {
    if (entry->widget != nullptr) entry->widget->removeEventFilter(this);
    delete entry->bindings;
  }
  for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) delete (*entry)->widget;
  open_.clear();
  entries_.clear();
}

ShownWindows::Entry& ShownWindows::entryOf(const base::Window& model) {
  const auto found =
      std::find_if(entries_.begin(), entries_.end(), [&](const auto& entry) { return entry->model == &model; });
  if (found == entries_.end()) throw base::Failure(base::ErrorNumber::internal);
  return **found;
}

// Later windows belong to the first one, the main window, unless their form does not want that.
ShownWindows::Entry& ShownWindows::built(Entry& entry) {
  if (entry.widget != nullptr) return entry;
  QWidget* const parent = &entry == entries_.front().get() ? nullptr : entries_.front()->widget;
  entry.widget = entry.form->build(parent);
  entry.bindings = &entry.tie(*entry.widget);
  entry.widget->installEventFilter(this);
  return entry;
}

void ShownWindows::show(base::Window& model) {
  Entry& entry = entryOf(model);
  if (model.isOpen) {
    bringToFront(*built(entry).widget);
  } else if (entry.form->appears == Appears::whenItTakesLonger) {
    entry.isLate = true;
  } else {
    appear(entry);
  }
}

void ShownWindows::showModal(base::Window& model) {
  Entry& entry = built(entryOf(model));
  if (model.isOpen) return bringToFront(*entry.widget);
  QDialog& dialog = dialogOf(*entry.widget);
  const Gate::ModalWait wait(gate_);
  opened(entry);
  dialog.exec();
  closed(entry);
}

void ShownWindows::appear(Entry& entry) {
  opened(built(entry));
  entry.widget->show();
}

void ShownWindows::showLateOnes() {
  for (const auto& entry : entries_) {
    if (std::exchange(entry->isLate, false)) appear(*entry);
  }
}

void ShownWindows::hide(base::Window& model) {
  Entry& entry = entryOf(model);
  entry.isLate = false;
  if (entry.widget != nullptr) entry.widget->hide();
}

void ShownWindows::requestClose(base::Window& model) {
  QMetaObject::invokeMethod(&widgetOf(model), &QWidget::close, Qt::QueuedConnection);
}

std::vector<base::Window*> ShownWindows::open() const {
  std::vector<base::Window*> models;
  for (const Entry* const entry : open_) models.push_back(entry->model);
  return models;
}

bool ShownWindows::closeAllBut(const base::Window& last, Refusal refusal) {
  const std::vector<Entry*> open = open_;
  bool haveClosed = true;
  for (auto entry = open.rbegin(); entry != open.rend() && (haveClosed || refusal == Refusal::isPassedOver); ++entry) {
    if ((*entry)->model != &last && !(*entry)->widget->close() && (*entry)->model->isOpen) haveClosed = false;
  }
  return haveClosed;
}

void ShownWindows::opened(Entry& entry) {
  sync_.open(*entry.bindings);
  entry.model->isOpen = true;
  std::erase(open_, &entry);
  open_.push_back(&entry);
}

void ShownWindows::closed(Entry& entry) {
  sync_.close(*entry.bindings);
  entry.model->isOpen = false;
  std::erase(open_, &entry);
}

QWidget* ShownWindows::inFront() const {
  QWidget* const active = QApplication::activeWindow();
  if (active != nullptr) return active;
  return lastActive_ != nullptr && lastActive_->isVisible() ? lastActive_.data() : nullptr;
}

// Whoever hides a window, the program or the person; a minimised one is hidden by the desktop and stays open.
bool ShownWindows::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowActivate) lastActive_ = static_cast<QWidget*>(watched);
  if (event->type() == QEvent::Hide && !event->spontaneous()) {
    const auto entry =
        std::find_if(entries_.begin(), entries_.end(), [&](const auto& each) { return each->widget == watched; });
    if (entry != entries_.end()) closed(**entry);
  }
  return false;
}

}  // namespace ui
