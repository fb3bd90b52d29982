// The part that the forms of price lists have in common: two lists that scroll as one, the fields of a row and the
// buttons below them.
#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class PriceTableForm;
}

namespace ui {

class PriceTable : public QWidget {
  Q_OBJECT

 public:
  explicit PriceTable(QWidget* parent = nullptr);
  ~PriceTable() override;

  void setNameHeading(const QString& heading);
  void setNameCaption(const QString& caption);
  void setPriceCaption(const QString& caption);
  /// What the lists say while they are empty.
  void setHint(const QString& hint);

 private:
  const std::unique_ptr<Ui::PriceTableForm> drawn_;
};

}  // namespace ui
