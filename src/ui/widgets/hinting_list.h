// A list that says what it is for while it is empty, and has room for a few rows at least.
#pragma once

#include <QListView>

namespace ui {

class HintingList : public QListView {
  Q_OBJECT

 public:
  explicit HintingList(QWidget* parent = nullptr) : QListView(parent) {}

  void setPlaceholderText(const QString& text) { placeholderText_ = text; }

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// A command acts on the current row, which is to be seen though it is not marked and the focus elsewhere.
  void frameCurrent(QPainter& painter) const;

  QString placeholderText_;
};

}  // namespace ui
