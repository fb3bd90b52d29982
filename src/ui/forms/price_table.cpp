// The part that the forms of price lists have in common.
#include "ui/forms/price_table.h"

#include <QAction>
#include <QScrollBar>
#include <QStyle>

#include "ui_price_table.h"

namespace ui {
namespace {

std::unique_ptr<Ui::PriceTableForm> drawnOn(QWidget& part) {
  auto drawn = std::make_unique<Ui::PriceTableForm>();
  drawn->setupUi(&part);
  return drawn;
}

QFont typewriter(QFont font) {
  font.setFamily(QStringLiteral("Courier New"));
  font.setStyleHint(QFont::TypeWriter);
  return font;
}

void scrollTogether(const QAbstractItemView& one, const QAbstractItemView& other) {
  QObject::connect(one.verticalScrollBar(), &QScrollBar::valueChanged, other.verticalScrollBar(),
                   &QScrollBar::setValue);
}

// The prices take the room that they need, the names all the rest.
void fitToPrices(QAbstractItemView& list) {
  constexpr int kCharacters = 18;
  const int bar = list.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
  list.setFixedWidth(kCharacters * list.fontMetrics().averageCharWidth() + bar + 2 * list.frameWidth());
}

}  // namespace

PriceTable::PriceTable(QWidget* parent) : QWidget(parent), drawn_(drawnOn(*this)) {
  for (HintingList* const list : {drawn_->List1, drawn_->List2}) {
    list->setFont(typewriter(list->font()));
    list->setSpacing(1);
  }
  fitToPrices(*drawn_->List2);
  scrollTogether(*drawn_->List1, *drawn_->List2);
  scrollTogether(*drawn_->List2, *drawn_->List1);
  drawn_->List1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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
