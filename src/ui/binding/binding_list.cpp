// The bindings of lists: drop-down lists, editable or not, and list boxes.
#include "ui/binding/binding_list.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "ui/utf8.h"

namespace ui {
namespace {

using base::Event;

constexpr int kLeastCharactersShown = 8;

/// Whether the drop-down list is one. Some styles open a menu, in which rows of one size come out far too wide.
bool opensAsList(const QComboBox& box) {
  QStyleOptionComboBox option;
  option.initFrom(&box);
  option.editable = box.isEditable();
  return box.style()->styleHint(QStyle::SH_ComboBox_Popup, &option, &box) == 0;
}

bool marksSeveral(const QListView& view) {
  return view.selectionMode() != QAbstractItemView::SingleSelection &&
         view.selectionMode() != QAbstractItemView::NoSelection;
}

std::vector<int> markedRows(const QItemSelectionModel& selection) {
  std::vector<int> rows;
  for (const QModelIndex& index : selection.selectedIndexes()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

/// Ascending rows as runs of neighbours, so that marking all of a long list is one range.
std::vector<std::pair<int, int>> runs(const std::vector<int>& rows) {
  std::vector<std::pair<int, int>> found;
  for (const int row : rows) {
    if (!found.empty() && found.back().second + 1 == row) {
      found.back().second = row;
    } else {
      found.emplace_back(row, row);
    }
  }
  return found;
}

}  // namespace

bool RowsModel::carry() {
  if (revision_ == rows_.revision()) return false;
  const bool isOneStep = revision_ && *revision_ + 1 == rows_.revision();
  revision_ = rows_.revision();
  isOneStep ? carry(rows_.lastStep()) : begin();
  return true;
}

void RowsModel::begin() {
  beginResetModel();
  count_ = rows_.size();
  endResetModel();
}

void RowsModel::carry(base::ItemList::Step step) {
  switch (step.kind) {
    case base::ItemList::Step::Kind::inserted:
      beginInsertRows({}, step.row, step.row);
      count_ = rows_.size();
      return endInsertRows();
    case base::ItemList::Step::Kind::removed:
      beginRemoveRows({}, step.row, step.row);
      count_ = rows_.size();
      return endRemoveRows();
    case base::ItemList::Step::Kind::replaced:
      return emit dataChanged(index(step.row), index(step.row));
    case base::ItemList::Step::Kind::anew:
      return begin();
  }
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (!rows_.holds(index.row())) return {};
  if (role == Qt::DisplayRole || role == Qt::EditRole) return toQString(rows_[index.row()]);
  if (role == Qt::ToolTipRole && tip_) return plainToolTip(tip_(index.row()));
  return {};
}

ComboBinding::ComboBinding(base::ComboBox& model, QComboBox& widget, const Context& context)
    : BindingOf(model, widget, context), rows_(model.items) {
  // Nothing may measure every row.
  widget.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  if (widget.minimumContentsLength() == 0) widget.setMinimumContentsLength(kLeastCharactersShown);
  widget.setInsertPolicy(QComboBox::NoInsert);
  widget.setFocusPolicy(Qt::StrongFocus);  // the wheel must not take the focus either
  if (auto* popup = qobject_cast<QListView*>(widget.view())) popup->setUniformItemSizes(opensAsList(widget));
  widget.setModel(&rows_);
  connect(&widget, &QComboBox::activated, this, &ComboBinding::choose);
  if (widget.lineEdit() != nullptr) makeEditable(*widget.lineEdit());
}

void ComboBinding::makeEditable(QLineEdit& edit) {
  // The toolkit's own completion would show a text that the model does not have.
  if (widget_.metaObject() == &QComboBox::staticMetaObject) widget_.setCompleter(nullptr);
  edit.installEventFilter(this);
  filter_ = std::make_unique<FilteredLine>(model_, edit, widget_, context());
  connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) { take(toUtf8(text)); });
  connect(&edit, &QLineEdit::textChanged, this, &ComboBinding::adopt);
}

void ComboBinding::choose(int index) {
  userChange([this, index] {
    model_.select(index);
    selected_.follow(model_.selected);
    text_.follow(model_.text);
    fire(Event::click);
  });
}

void ComboBinding::take(const std::string& text) {
  userChange([this, &text] {
    model_.text = text;
    model_.selected = -1;
    text_.follow(text);
    selected_.follow(-1);
    fire(Event::changed);
  });
}

/// A text that the box has set itself: the one of the item about to be chosen, or the one that it went back to.
void ComboBinding::adopt() {
  const std::string text = toUtf8(widget_.currentText());
  if (text == model_.text) return;
  userChange([this, &text] {
    model_.select(widget_.currentIndex());
    if (model_.text != text) model_.selected = -1;
    model_.text = text;
    selected_.follow(model_.selected);
    text_.follow(text);
  });
}

void ComboBinding::distrust() {
  selected_.forget();
  text_.forget();
}

void ComboBinding::carryOwn() {
  if (rows_.carry()) distrust();
  if (selected_.follow(model_.selected)) {
    widget_.setCurrentIndex(model_.selected);
    text_.forget();
  }
  if (text_.follow(model_.text) && widget_.isEditable() && toUtf8(widget_.currentText()) != model_.text) {
    widget_.setEditText(toQString(model_.text));
  }
}

bool ComboBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel && !widget_.hasFocus()) {
    event->ignore();  // what the box lies on may scroll
    return true;
  }
  return BindingOf::eventFilter(watched, event);
}

ListBinding::ListBinding(base::ListBox& model, QListView& widget, const Context& context)
    : BindingOf(model, widget, context), rows_(model.items) {
  widget.setUniformItemSizes(true);  // or every row is measured
  widget.setEditTriggers(QAbstractItemView::NoEditTriggers);
  widget.setModel(&rows_);
  widget.viewport()->installEventFilter(this);
  widget.verticalScrollBar()->installEventFilter(this);
  rows_.setTip([this](int row) { return this->context().wiring.tipOf(model_, row); });
  // What is read anew, as by a window opened again, begins at its first row.
  connect(&rows_, &QAbstractItemModel::modelReset, &widget, &QListView::scrollToTop);
  connect(&widget, &QListView::clicked, this, &ListBinding::click);
  connect(&widget, &QListView::doubleClicked, this, [this] { userChange([this] { fire(Event::doubleClick); }); });
  const QItemSelectionModel* selection = widget.selectionModel();
  connect(selection, &QItemSelectionModel::currentChanged, this, &ListBinding::take);
  connect(selection, &QItemSelectionModel::selectionChanged, this, &ListBinding::take);
}

void ListBinding::take() {
  userChange([this] {
    const QItemSelectionModel& selection = *widget_.selectionModel();
    const bool showsCurrent = marksSeveral(widget_) || selection.hasSelection();
    model_.current = showsCurrent ? selection.currentIndex().row() : -1;
    if (marksSeveral(widget_)) model_.marked = markedRows(selection);
    current_.follow(model_.current);
    marked_.follow(model_.marked);
    fire(Event::selected);
  });
}

void ListBinding::click() {
  userChange([this] { fire(Event::click); });
}

bool ListBinding::enter(const QKeyEvent& key) {
  const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if (!isEnter || handles(Event::keyEnter) || !handles(Event::click) || !widget_.currentIndex().isValid()) return false;
  click();
  return true;
}

bool ListBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && enter(static_cast<const QKeyEvent&>(*event))) return true;
  // Of rows the view tells itself.
  const bool isBesideRows = event->type() == QEvent::MouseButtonDblClick && watched == widget_.viewport() &&
                            !widget_.indexAt(static_cast<const QMouseEvent&>(*event).pos()).isValid();
  if (isBesideRows && handles(Event::doubleClick)) userChange([this] { fire(Event::doubleClick); });
  return BindingOf::eventFilter(watched, event);
}

void ListBinding::distrust() {
  current_.forget();
  marked_.forget();
}

void ListBinding::carryOwn() {
  if (rows_.carry()) distrust();
  const bool isMoved = current_.follow(model_.current);
  const bool isMarkedAnew = marked_.follow(model_.marked);
  if (isMoved || isMarkedAnew) showMarks();
}

void ListBinding::showMarks() {
  const QModelIndex current = rows_.index(model_.current);
  QItemSelectionModel& selection = *widget_.selectionModel();
  if (!marksSeveral(widget_)) {
    selection.setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
  } else {
    QItemSelection marks;
    for (const auto& [first, last] : runs(model_.marked)) marks.select(rows_.index(first), rows_.index(last));
    selection.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    selection.select(marks, QItemSelectionModel::ClearAndSelect);
  }
}

}  // namespace ui
