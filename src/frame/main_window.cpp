// What the main window shows before anything is typed.
#include "frame/main_window.h"

#include <initializer_list>

namespace frame {

MainWindow::MainWindow() : Window("frmMain") {
  txtStück.text = "1";
  for (base::TextBox* box : {&txtProzent, &txtRabatt, &txtProzentDM, &txtRabattDM}) box->text = "0.00";
  lblcboChange1.text = "1";
  lblcboChange2.text = "2";
  for (base::Label* label :
       {&lblPreisNettoGesamt, &lblMwstG, &lblBruttoGesamt, &lblNettoDM, &lblMwstG1, &lblBruttoDM}) {
    label->colour = kPositiveTotal;
  }
  lblNettoDM.text = "Netto gesamt";
  lblBruttoDM.text = "Brutto gesamt";
  for (base::Label* label : {&lblMarkierung, &lblMarkierungZeichen}) {
    label->text = "nur Markierung";
    label->visible = false;
  }
  lblKeinTreffer.text = "kein Treffer";
  lblKeinTreffer.visible = lblSuchangebot.visible = pnlSuche.visible = pnlErsetzen.visible = false;
  for (base::Button* button : {&cmdWeiter, &cmdZurück, &cmdErsetzen, &cmdAlleErsetzen}) button->enabled = false;
  imgTimer.visible = false;
  mnuUndo.enabled = mnuRedo.enabled = false;
  for (base::Control* look :
       std::initializer_list<base::Control*>{&cmdContainerLook, &mnuContainerLook, &mnuContainerClear}) {
    look->enabled = false;
  }
  lblRCalc.text = "0.00 EUR";
}

}  // namespace frame
