// The windows beside the main one.
#include "ui/dialogs.h"

#include <QDialog>

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

QDialog* makeLoadingScreen(QWidget* parent) { return drawn<Ui::LoadingForm>(parent, Qt::SplashScreen); }

QDialog* makePicker(QWidget* parent) { return drawn<Ui::PickerForm>(parent); }

}  // namespace ui
