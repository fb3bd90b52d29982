// The box of typefaces: one that is not installed is shown in italics, and its tool tip says what is drawn instead.
//
// A name with its foundry, "Arial [Monotype]", is the typeface "Arial".
#pragma once

#include "ui/widgets/auto_complete_combo_box.h"

namespace ui {

class TypefaceComboBox : public AutoCompleteComboBox {
  Q_OBJECT

 public:
  explicit TypefaceComboBox(QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;

 private:
  [[nodiscard]] bool isInstalled(const QString& family) const;
  void showWhetherInstalled();
};

}  // namespace ui
