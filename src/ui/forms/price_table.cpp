// The part that the forms of price lists have in common.
#include "ui/forms/price_table.h"

#include <QAction>

#include "ui/forms/price_columns.h"
#include "ui_price_table.h"

namespace ui {
namespace {

std::unique_ptr<Ui::PriceTableForm> drawnOn(QWidget& part) {
  auto drawn = std::make_unique<Ui::PriceTableForm>();
  drawn->setupUi(&part);
  return drawn;
}

}  // namespace

PriceTable::PriceTable(QWidget* parent) : QWidget(parent), drawn_(drawnOn(*this)) {
  joinColumns(*drawn_->List1, *drawn_->List2);
  drawn_->fixStrich->setSeparator(true);
  QSizePolicy keepsPlace = drawn_->Progress1->sizePolicy();
  keepsPlace.setRetainSizeWhenHidden(true);
  drawn_->Progress1->setSizePolicy(keepsPlace);
}

PriceTable::~PriceTable() = default;

void PriceTable::setNameHeading(const QString& heading) {
  drawn_->fixKopf1->setText(heading);
  drawn_->List1->setAccessibleName(heading);
  drawn_->List2->setAccessibleName(drawn_->fixKopf2->text());
}

void PriceTable::setNameCaption(const QString& caption) { drawn_->fixName->setText(caption); }
void PriceTable::setPriceCaption(const QString& caption) { drawn_->fixPreis->setText(caption); }
void PriceTable::setHint(const QString& hint) { drawn_->List1->setPlaceholderText(hint); }

}  // namespace ui
