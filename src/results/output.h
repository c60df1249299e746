// The Output window: the yield table of the last single run, and from it the clipboard, the graphs
// and the reports.
#pragma once

#include "forms/common_dialog.h"
#include "forms/controls.h"
#include "forms/grid.h"
#include "model_bridge/yield_table.h"

#include <cstdint>
#include <string>
#include <vector>

namespace arbolith {

/// The form Output. Its places are fixed; the window scales them as a whole.
struct OutputForm : Form {
    explicit OutputForm(Application& application);

    MenuItem File_Mnu{*this, "File_Mnu", "&File"};
    MenuItem Open_Mnu{File_Mnu, "Open_Mnu", "&Open"};
    MenuItem Save_Mnu{File_Mnu, "Save_Mnu", "&Save"};
    MenuItem Close_Window_Mnu{File_Mnu, "Close_Window_Mnu", "&Close"};
    MenuItem Close_Program_Mnu{File_Mnu, "Close_Program_Mnu", "&Exit"};
    MenuItem Edit_Mnu{*this, "Edit_Mnu", "&Edit"};
    MenuItem Select_All_Mnu{Edit_Mnu, "Select_All_Mnu", "&Select All (and Copy)", "Ctrl+A"};
    MenuItem Copy_Mnu{Edit_Mnu, "Copy_Mnu", "&Copy", "Ctrl+C"};
    MenuItem Definitions_Mnu{Edit_Mnu, "Definitions_Mnu", "&Column Header Definitions..."};

    /// For the reports that are saved.
    CommonDialog CDL;

    Label Title{*this, "Title", "", {120, 0, 9015, 375}, {.bold = true, .points = 12}};
    Label YTBH{*this, "YTBH", "", {2520, 360, 6615, 375}, {.bold = true, .points = 12}};
    Grid Table{*this, "Table", {240, 840, 8775, 5415}};
    Button grphDiameter{*this, "grphDiameter", "Graph Diameter", {120, 6360, 1455, 255}};
    Button grphBa{*this, "grphBa", "Graph B. Area", {120, 6720, 1455, 255}};
    Button grphHeight{*this, "grphHeight", "Graph Height", {1680, 6360, 1455, 255}};
    Button grphFrequency{*this, "grphFrequency", "Graph Frequency", {1680, 6720, 1455, 255}};
    Button grphVolume{*this, "grphVolume", "Graph Volume", {3240, 6360, 1455, 255}};
    Button graphMai{*this, "graphMai", "Graph M.A.I.", {3240, 6720, 1455, 255}};
    Button grphCumVol{*this, "grphCumVol", "Graph Cumulative Volume", {4680, 6360, 2175, 255}};
    Button grphCumMai{*this, "grphCumMai", "Graph Cumulative M.A.I.", {4680, 6720, 2175, 255}};
    Button btnGrphCol{*this, "btnGrphCol", "Graph Selected Column(s)", {6960, 6360, 2055, 255}};
    Button btnGrphCust{*this, "btnGrphCust", "Select Columns to Graph", {6960, 6720, 2055, 255}};
};

/// The window with the texts that stay with its table.
class Output : public YieldTable {
public:
    explicit Output(Application& application);

    OutputForm form;
    std::string OutputYTBH;     ///< Years from stump to breast height.
    std::string OutputRunLine;  ///< "0", a tab, "S" or "H", a tab, the run line.

    double YAxisMax = 0;                      ///< Largest Y value of the graph; once drawn, the end
                                              ///< of its Y axis.
    int XColumn = 0;                          ///< Table column of the graph's X variable.
    std::vector<std::int16_t> SeriesColumns;  ///< Table columns of its Y series; 0 for none.

    /// Puts the selection on the clipboard; warns when it is empty.
    void Copy_Mnu_Click();
    /// Selects the codes and all data rows, and copies them.
    void SelectAll();

    Form& Window() override { return form; }
    Grid& Table() override { return form.Table; }
    Label& Title() override { return form.Title; }
    Label& YTBH() override { return form.YTBH; }
    void SetReportTexts(const std::string& ytbh, const std::string& runLine) override;
    void EnableGraphs() override;
    void CopySelection() override { Copy_Mnu_Click(); }

private:
    Application& application_;
};

}  // namespace arbolith
