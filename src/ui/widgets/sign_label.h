// A word on a colour of its own, which can be read in either palette.
#pragma once

#include <QLabel>

namespace ui {

enum class WhenHidden { keepsPlace, leavesPlace };

void makeSign(QLabel& word, WhenHidden whenHidden);

/// One that keeps its place.
class SignLabel : public QLabel {
  Q_OBJECT

 public:
  explicit SignLabel(QWidget* parent = nullptr) : QLabel(parent) { makeSign(*this, WhenHidden::keepsPlace); }
};

}  // namespace ui
