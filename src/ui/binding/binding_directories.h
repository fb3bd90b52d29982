// The binding of a tree of directories, of which each is read when it is opened.
#pragma once

#include <QStandardItemModel>
#include <QTreeView>
#include <string>
#include <utility>

#include "ui/binding/binding.h"

namespace ui {

/// A directory and what lies below it, without hidden ones.
class DirectoryModel : public QStandardItemModel {
 public:
  /// Begins anew, with this one directory at the top; none when it is empty.
  void setTop(const QString& path);
  /// The row of a directory, which is read on the way there; invalid when there is none, or not below the top.
  QModelIndex indexOf(const QString& path);
  [[nodiscard]] static QString pathOf(const QModelIndex& index) { return index.data(kPath).toString(); }

  [[nodiscard]] bool hasChildren(const QModelIndex& parent) const override {
    return canFetchMore(parent) || QStandardItemModel::hasChildren(parent);
  }
  [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override {
    return parent.isValid() && !parent.data(kIsRead).toBool();
  }
  void fetchMore(const QModelIndex& parent) override;

 private:
  enum Role { kPath = Qt::UserRole + 1, kIsRead };

  static QStandardItem* itemOf(const QString& path);
  QStandardItem* child(QStandardItem& parent, const QString& name);
};

/// `click` is fired when the user goes to another directory, by mouse or keys.
class DirectoriesBinding : public BindingOf<base::DirectoryTree, QTreeView> {
 public:
  DirectoriesBinding(base::DirectoryTree& model, QTreeView& widget, const Context& context);

 private:
  void carryOwn() override;
  void distrust() override { path_.forget(); }
  void take(const QModelIndex& current);

  DirectoryModel directories_;
  Shown<std::pair<std::string, int>> read_;
  Shown<std::string> path_;
};

}  // namespace ui
