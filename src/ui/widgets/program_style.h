// The desktop's style, except where it does not stand our long lists.
#pragma once

#include <QProxyStyle>

namespace ui {

class ProgramStyle : public QProxyStyle {
 public:
  /// A drop-down list is a list of a few rows that scrolls, not a menu: a menu measures every row when it opens.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
  }
};

}  // namespace ui
