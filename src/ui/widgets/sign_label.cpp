// What makes a label a sign.
#include "ui/widgets/sign_label.h"

namespace ui {

void makeSign(QLabel& word, WhenHidden whenHidden) {
  word.setStyleSheet(QStringLiteral("background: #ffb300; color: black; border-radius: 3px; padding: 0 4px;"));
  QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Maximum);
  policy.setRetainSizeWhenHidden(whenHidden == WhenHidden::keepsPlace);
  word.setSizePolicy(policy);
}

}  // namespace ui
