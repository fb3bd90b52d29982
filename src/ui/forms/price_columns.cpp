// Two lists that are the columns of one table.
#include "ui/forms/price_columns.h"

#include <QScrollBar>
#include <QStyle>

namespace ui {
namespace {

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

void joinColumns(HintingList& names, HintingList& prices) {
  for (HintingList* const list : {&names, &prices}) {
    list->setFont(typewriter(list->font()));
    list->setSpacing(1);
  }
  fitToPrices(prices);
  scrollTogether(names, prices);
  scrollTogether(prices, names);
  names.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

}  // namespace ui
