// The key filter of a line edit: whatever way text gets in, only what the filter lets through stays.
//
// A typed character is replaced before it enters. Pasted, dropped or composed text is rejected as a whole by way of
// the validator, which takes it back without a trace in the undo history, and what the filter leaves of it is inserted
// in its place. So undo and redo never meet a refused character; they, and what the program writes, pass unfiltered.
#pragma once

#include <QLineEdit>
#include <QValidator>

#include "ui/binding/binding.h"

namespace ui {

class FilteredLine : public QValidator {
 public:
  /// `keys` is what receives the keys of `edit`: itself, or the combo box it is part of.
  FilteredLine(const base::Control& box, QLineEdit& edit, QWidget& keys, const Context& context);

  State validate(QString& text, int& caret) const override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  [[nodiscard]] bool isFiltered() const { return context_.wiring.hasFilter(box_); }
  /// What the filter leaves of `typed`; nothing when it leaves it as it is.
  [[nodiscard]] std::optional<QString> replacement(const QString& typed) const;

  const base::Control& box_;
  QLineEdit& edit_;
  const Context context_;
  QString before_;  // the text before the edit that is being judged
};

}  // namespace ui
