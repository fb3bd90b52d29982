// The text container on the screen.
#pragma once

#include <QMainWindow>

namespace ui {

class ViewCommands;

/// Belongs to no other window, so that either can stand in front. Place, size and zoom are kept for the user.
class ContainerForm : public QMainWindow {
 public:
  ContainerForm();

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  ViewCommands* view_;
};

}  // namespace ui
