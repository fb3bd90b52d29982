// The windows beside the main one.
#include "ui/forms/dialogs.h"

#include <QDialog>
#include <QGuiApplication>
#include <QScreen>

#include "ui_loading.h"
#include "ui_picker.h"

namespace ui {
namespace {

template <typename Form>
QDialog* drawn(QWidget* parent, Qt::WindowFlags flags = {}) {
  auto* const dialog = new QDialog(parent, flags);
  Form().setupUi(dialog);
  return dialog;
}

}  // namespace

// In the middle of the screen; the main window, which it belongs to, has no place yet.
QDialog* makeLoadingScreen(QWidget* parent) {
  QDialog* const screen = drawn<Ui::LoadingForm>(parent, Qt::SplashScreen);
  screen->move(QGuiApplication::primaryScreen()->availableGeometry().center() - screen->rect().center());
  return screen;
}

QDialog* makePicker(QWidget* parent) { return drawn<Ui::PickerForm>(parent); }

}  // namespace ui
