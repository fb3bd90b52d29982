// The bindings of lists: drop-down lists, editable or not, and list boxes. The rows are shown where they are, never
// copied.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QListView>
#include <memory>
#include <optional>

#include "ui/binding/binding.h"
#include "ui/binding/filtered_line.h"

namespace ui {

/// The rows of a model as the toolkit's views ask for them.
class RowsModel : public QAbstractListModel {
 public:
  explicit RowsModel(const base::ItemList& rows) : rows_(rows) {}

  /// Where the tool tip of a row comes from; an empty one is none.
  void setTip(base::Wiring::RowTip tip) { tip_ = std::move(tip); }
  /// Shows the rows as they are now; false when they have not changed.
  bool carry();

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  void begin();
  /// One row changed: views keep their place and need not be laid out anew.
  void carry(base::ItemList::Step step);

  const base::ItemList& rows_;
  int count_ = 0;  // as carried last; the rows may already be fewer
  std::optional<std::uint64_t> revision_;
  base::Wiring::RowTip tip_;
};

class ComboBinding : public BindingOf<base::ComboBox, QComboBox> {
 public:
  ComboBinding(base::ComboBox& model, QComboBox& widget, const Context& context);

 private:
  void carryOwn() override;
  void distrust() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void makeEditable(QLineEdit& edit);
  void choose(int index);
  void take(const std::string& text);
  void adopt();

  RowsModel rows_;
  Shown<int> selected_;
  Shown<std::string> text_;
  std::unique_ptr<FilteredLine> filter_;
};

/// `selected` is fired when the user moves the current row or the marks, `click` when a row is clicked or, where Enter
/// has no meaning of its own, entered.
class ListBinding : public BindingOf<base::ListBox, QListView> {
 public:
  ListBinding(base::ListBox& model, QListView& widget, const Context& context);

 private:
  void carryOwn() override;
  void distrust() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void take();
  void click();
  bool enter(const QKeyEvent& key);
  void showMarks();

  RowsModel rows_;
  Shown<int> current_;
  Shown<std::vector<int>> marked_;
};

}  // namespace ui
