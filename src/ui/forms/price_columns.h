// Two lists that are the columns of one table: names and prices in type of one width, which scroll as one.
#pragma once

#include "ui/widgets/hinting_list.h"

namespace ui {

void joinColumns(HintingList& names, HintingList& prices);

}  // namespace ui
