// A combo box that says why nothing can be chosen while its list is empty, and says so only then.
#pragma once

#include <QComboBox>

namespace ui {

class ListedComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit ListedComboBox(QWidget* parent = nullptr) : QComboBox(parent) {}

  void setEmptyText(const QString& text) { emptyText_ = text; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString emptyText_;
};

}  // namespace ui
