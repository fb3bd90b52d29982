// A combo box that tells when the user is done with it, so that the focus can go where the work goes on.
#pragma once

#include <QComboBox>

namespace ui {

class ChoosingComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit ChoosingComboBox(QWidget* parent = nullptr);

 signals:
  /// A row of the open list was taken, not one that was stepped to in the closed box.
  void chosen();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool isStepping_ = false;
};

}  // namespace ui
