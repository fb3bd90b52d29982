// The editor of the price list.
#include "pricelists/price_editor.h"

namespace pricelists {
namespace {

constexpr PriceTableKind kPriceList{.list = calc::kCapHeights,
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

}  // namespace

PriceTable priceEditor(PriceEditorWindow& window, CsvImportWindow& csvImport, const settings::Paths& paths,
                       const settings::Rates& rates, base::Platform& platform, errors::Reporter& reporter) {
  return {window, kPriceList, csvImport, paths, rates, platform, reporter};
}

bool editPriceList(const PriceTable& editor, const std::string& recovered) {
  openPriceTable(editor, recovered);
  editor.window.txtVersalie.wantsFocus = true;
  editor.platform.showModal(editor.window);
  return editor.window.isSaved;
}

}  // namespace pricelists
