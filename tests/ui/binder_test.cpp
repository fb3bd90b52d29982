// The binder: what it ties, and which faults of a form it names.
#include "ui/binding/binder.h"

#include <gtest/gtest.h>

#include <QListWidget>
#include <memory>
#include <string>
#include <vector>

#include "sample_window.h"

namespace ui {
namespace {

TEST(Binder, NamesEveryFaultOfAForm) {
  Sample sample;
  sample.form.height.setObjectName("lblHoehe");
  sample.form.pieces.setObjectName("txtProzent");
  sample.form.rows.setObjectName("");
  QListWidget ownRows(&sample.form);
  ownRows.setObjectName("lstAuswahl");
  QAction spare(&sample.form);
  spare.setObjectName("mnuRest");
  QWidget document(&sample.form);
  document.setObjectName("rtfText");
  QLabel timer(&sample.form);
  timer.setObjectName("tmrUhr");
  EXPECT_EQ(mismatches(sample.model, sample.form, {"rtfText"}),
            (Names{"txtProzent: the form draws it twice", "lblHöhe: the form does not draw it",
                   "txtStück: the form does not draw it", "lstAuswahl: the form draws it as another kind",
                   "lblHoehe: no control of that name", "mnuRest: no control of that name",
                   "tmrUhr: no control of that name"}));
}

TEST(Binder, BindsAFormAgainAfterItsWindowWasBuiltAnew) {
  Sample sample;
  sample.model.lblHöhe.text = "50 mm";
  sample.show();
  {
    SampleForm second;
    sample.sync.open(bind(sample.model, second, Context{sample.wiring, sample.gate}, sample.sync));
    EXPECT_EQ(second.height.text(), "50 mm");
  }
  sample.run([&] { sample.model.lblHöhe.text = "60 mm"; });  // the form that is gone is no longer carried
  EXPECT_EQ(sample.form.height.text(), "60 mm");
}

}  // namespace
}  // namespace ui
