// A combo box to type into that completes the text to one of its items.
#include "ui/widgets/auto_complete_combo_box.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>
#include <vector>

namespace ui {
namespace {

constexpr int kOfferedItems = 12;
constexpr int kAroundRow = 16;  // what a style leaves beside the text of a row
constexpr double kShareOfScreen = 0.4;

/// Whether a list, a menu or another window has the focus for a while only.
bool isLent(Qt::FocusReason reason) {
  return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason || reason == Qt::ActiveWindowFocusReason;
}

bool isEnter(const QKeyEvent& key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

}  // namespace

AutoCompleteComboBox::AutoCompleteComboBox(QWidget* parent) : ChoosingComboBox(parent) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  completer()->setCompletionMode(QCompleter::PopupCompletion);
  completer()->setCaseSensitivity(Qt::CaseInsensitive);
  completer()->setMaxVisibleItems(kOfferedItems);
  connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
    if (!hasFocus()) showStart();
  });
  // The list of completions follows the text a moment later.
  connect(lineEdit(), &QLineEdit::textEdited, this, &AutoCompleteComboBox::highlightBest, Qt::QueuedConnection);
  connect(this, &QComboBox::activated, this, [this](int index) { before_ = itemText(index); });
}

void AutoCompleteComboBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  if (!lineEdit()->isModified()) before_ = currentText();
  if (isLent(event->reason())) return;
  widenLists();
  // Every new model lets the completer come first again; here this filter does, for the completer would pass on Enter.
  completer()->popup()->installEventFilter(this);
  // A click places the caret after the focus has come.
  QTimer::singleShot(0, lineEdit(), &QLineEdit::selectAll);
}

void AutoCompleteComboBox::focusOutEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  if (!isLent(reason)) settle(reason == Qt::TabFocusReason ? Take::completion : Take::wholeItem);
  // The line edit would lose its selection to the menu bar.
  QFocusEvent leaving(QEvent::FocusOut, reason == Qt::MenuBarFocusReason ? Qt::PopupFocusReason : reason);
  QComboBox::focusOutEvent(&leaving);
  if (!isLent(reason)) showStart();
}

void AutoCompleteComboBox::keyPressEvent(QKeyEvent* event) {
  if (isEnter(*event)) {
    settle(Take::completion);
    emit chosen();
    return;
  }
  ChoosingComboBox::keyPressEvent(event);
}

bool AutoCompleteComboBox::eventFilter(QObject* watched, QEvent* event) {
  QAbstractItemView* const popup = completer()->popup();
  if (watched != popup || event->type() != QEvent::KeyPress) return QComboBox::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (!isEnter(key) && key.key() != Qt::Key_Tab) return false;
  const QModelIndex highlighted = popup->currentIndex();
  const int row = rowOf(highlighted.isValid() ? highlighted.data().toString() : currentText(), Take::completion);
  popup->hide();
  if (row >= 0) choose(row);
  return true;
}

int AutoCompleteComboBox::rowOf(const QString& text, Take take) const {
  const int whole = findText(text, Qt::MatchFixedString);
  if (whole >= 0 || take == Take::wholeItem || text.isEmpty()) return whole;
  return findText(text, Qt::MatchStartsWith);
}

void AutoCompleteComboBox::showStart() { lineEdit()->setCursorPosition(0); }

void AutoCompleteComboBox::settle(Take take) {
  if (currentText() == before_) return;
  const int row = rowOf(currentText(), take);
  if (row >= 0) {
    choose(row);
  } else {
    setEditText(before_);
  }
}

void AutoCompleteComboBox::choose(int index) {
  setCurrentIndex(index);
  setEditText(itemText(index));
  emit activated(index);
}

// Silently, or the completer would write the whole completion into the text that is still being typed.
void AutoCompleteComboBox::highlightBest() {
  QAbstractItemView* const popup = completer()->popup();
  if (!popup->isVisible() || popup->currentIndex().isValid()) return;
  const QSignalBlocker silence(completer());
  popup->setCurrentIndex(popup->model()->index(0, completer()->completionColumn()));
}

// As wide as the longest item. Only the ones with the most letters are measured, for there may be thousands.
void AutoCompleteComboBox::widenLists() {
  constexpr std::size_t kMeasured = 10;
  std::vector<QString> longest;
  longest.reserve(static_cast<std::size_t>(count()));
  for (int row = 0; row < count(); ++row) longest.push_back(itemText(row));
  const auto end = longest.begin() + static_cast<std::ptrdiff_t>(std::min(kMeasured, longest.size()));
  std::partial_sort(longest.begin(), end, longest.end(),
                    [](const QString& one, const QString& other) { return one.size() > other.size(); });
  int width = 0;
  for (auto item = longest.begin(); item != end; ++item) {
    width = std::max(width, fontMetrics().horizontalAdvance(*item));
  }
  width += view()->verticalScrollBar()->sizeHint().width() + kAroundRow;
  width = std::min(width, static_cast<int>(screen()->availableSize().width() * kShareOfScreen));
  for (QAbstractItemView* const list : {view(), completer()->popup()}) list->setMinimumWidth(width);
}

}  // namespace ui
