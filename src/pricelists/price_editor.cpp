// The editor of the price list.
#include "pricelists/price_editor.h"

namespace pricelists {

constexpr PriceTableKind kPriceEditor{.list = calc::kCapHeights,
                                      .subject = "Nettopreis eines Zeichens für jede Versalienhöhe",
                                      .saveQuestion = "Möchten Sie die Änderungen an der Preisliste speichern?",
                                      .nameMissing = "Bitte eine Versalienhöhe eingeben",
                                      .csvHeading = "Versalienhöhe",
                                      .loadTag = "DATA-formActivate",
                                      .addTag = "DATA-cmdAdd",
                                      .insertTag = "DATA-Einfügen",
                                      .changeTag = "DATA-List1-DblClick",
                                      .deleteTag = "DATA-cmdDelete",
                                      .clearTag = "DATA-cmdUpdate_Click",
                                      .exportTag = "DATA-Zwischenablage",
                                      .csvImportTag = "DATA-CsvImport",
                                      .csvExportTag = "DATA-CsvExport",
                                      .printTag = "DATA-cmdPrint",
                                      .printHeading = "Preisliste - Stand: ",
                                      .timerTag = "DATA-timer1",
                                      .saveTag = "DATA-cmdOK"};

bool editPriceList(const PriceTable& editor, const std::string& recovered) {
  openPriceTable(editor, recovered);
  editor.window.txtVersalie.wantsFocus = true;
  editor.platform.showModal(editor.window);
  return editor.window.isSaved;
}

}  // namespace pricelists
