// The binding of a tree of directories.
#include "ui/binding/binding_directories.h"

#include <QDir>
#include <QIcon>

#include "ui/utf8.h"

namespace ui {

void DirectoryModel::setTop(const QString& path) {
  clear();
  if (!path.isEmpty()) appendRow(itemOf(path));
}

QStandardItem* DirectoryModel::itemOf(const QString& path) {
  const QString name = QDir(path).dirName();
  auto* const item = new QStandardItem(QIcon::fromTheme(QStringLiteral("folder")), name.isEmpty() ? path : name);
  item->setData(path, kPath);
  return item;
}

void DirectoryModel::fetchMore(const QModelIndex& parent) {
  QStandardItem& item = *itemFromIndex(parent);
  item.setData(true, kIsRead);
  const QDir directory(pathOf(parent));
  constexpr auto kSorted = QDir::Name | QDir::IgnoreCase | QDir::LocaleAware;
  for (const QString& name : directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot, kSorted)) {
    item.appendRow(itemOf(directory.filePath(name)));
  }
}

// A hidden directory is shown once it was chosen otherwise.
QStandardItem* DirectoryModel::child(QStandardItem& parent, const QString& name) {
  if (canFetchMore(parent.index())) fetchMore(parent.index());
  for (int row = 0; row < parent.rowCount(); ++row) {
    if (parent.child(row)->text() == name) return parent.child(row);
  }
  const QString path = QDir(pathOf(parent.index())).filePath(name);
  if (!QDir(path).exists()) return nullptr;
  parent.appendRow(itemOf(path));
  return parent.child(parent.rowCount() - 1);
}

QModelIndex DirectoryModel::indexOf(const QString& path) {
  QStandardItem* found = item(0);
  if (found == nullptr) return {};
  const QString below = QDir(pathOf(found->index())).relativeFilePath(QDir::cleanPath(path));
  if (below == QLatin1String(".")) return found->index();
  for (const QString& name : below.split(QLatin1Char('/'))) {
    found = name == QLatin1String("..") ? nullptr : child(*found, name);
    if (found == nullptr) return {};
  }
  return found->index();
}

DirectoriesBinding::DirectoriesBinding(base::DirectoryTree& model, QTreeView& widget, const Context& context)
    : BindingOf(model, widget, context) {
  widget.setHeaderHidden(true);
  widget.setUniformRowHeights(true);
  widget.setEditTriggers(QAbstractItemView::NoEditTriggers);
  widget.setModel(&directories_);
  connect(widget.selectionModel(), &QItemSelectionModel::currentChanged, this, &DirectoriesBinding::take);
}

void DirectoriesBinding::take(const QModelIndex& current) {
  if (!current.isValid()) return;
  userChange([this, &current] {
    model_.path = toUtf8(DirectoryModel::pathOf(current));
    path_.follow(model_.path);
    fire(base::Event::click);
  });
}

void DirectoriesBinding::carryOwn() {
  if (read_.follow({model_.root, model_.readings})) {
    directories_.setTop(toQString(model_.root));
    widget_.expand(directories_.index(0, 0));
    path_.forget();
  }
  if (!path_.follow(model_.path)) return;
  const QModelIndex chosen = directories_.indexOf(toQString(model_.path));
  widget_.setCurrentIndex(chosen);
  widget_.scrollTo(chosen, QAbstractItemView::PositionAtCenter);
}

}  // namespace ui
