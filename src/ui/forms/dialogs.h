// The windows beside the main one, as their forms draw them.
#pragma once

class QDialog;
class QWidget;

namespace ui {

/// Each is owned by `parent` where there is one.
QDialog* makeLoadingScreen(QWidget* parent);
QDialog* makePicker(QWidget* parent);

}  // namespace ui
