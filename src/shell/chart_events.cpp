// The events of the chart, its options, the custom chart and the definitions: control, event, and
// what runs, in order.
#include "charts/chart_copies.h"
#include "shell/events.h"

namespace arbolith {

namespace {

constexpr int kEnter = 13;

}  // namespace

void WireChartWindow(ChartWindow& window, GraphBuilder& graphs, Resize& resize) {
    window.Close_Btn.onClick = window.onClose = [&window] { window.CloseWindow(); };
    window.FullScreen.onClick = [&window] { window.ToggleFullScreen(); };
    window.Copy_Btn.onClick = [&window] { CopyGraph(window); };
    window.Save_Btn.onClick = [&window] { SaveGraph(window); };
    window.Print_Btn.onClick = [&window] { PrintGraph(window); };
    window.Axis.onClick = [&window] { window.OpenOptions(); };
    // The mode that stands is not drawn again.
    window.Line_Btn.onClick = [&window, &graphs] {
        if (!window.XYEnabled) graphs.LineGraph();
    };
    window.Bar_Btn.onClick = [&window, &graphs] {
        if (window.XYEnabled) graphs.BarGraph();
    };
    window.Chart.onPointActivated = [&window](int series, int point) {
        window.ShowPoint(series, point);
    };
    window.onResize = [&window, &resize] {
        resize.ResizeForm(window);
        window.KeepFullScreen();
    };
}

void WireChartOptions(ChartOptions& options, Resize& resize) {
    options.Reload.onClick = options.onActivate = [&options] { options.Reload_Click(); };
    options.Accept.onClick = [&options] { options.AcceptFields(); };
    options.Cancel.onClick = options.onClose = [&options] { options.CancelEdits(); };
    for (TextBox* field : {&options.XMax, &options.XMin, &options.XDMaj, &options.XDMin,
                           &options.YMax, &options.YMin, &options.YDMaj, &options.YDMin})
        field->onKeyPress = [&options](int& key) {
            if (key == kEnter) options.AcceptFields();
        };
    options.Save_Mnu.onClick = [&options] { options.SaveAndHide(); };
    options.Max.onChange = [&options] { options.ApplyMax(); };
    options.onResize = [&options, &resize] { resize.ResizeForm(options); };
}

void WireCustomChart(CustomChart& window, AtFirstUse<Definitions>& definitions, Resize& resize) {
    window.cmbDomainSelect.onClick = [&window] { window.ChooseDomain(); };
    window.btnOK.onClick = [&window] { window.DrawChoice(); };
    window.btnCancel.onClick = [&window] { window.CancelChoice(); };
    window.Var_Defn_Mnu.onClick = [&definitions] {
        definitions.Get().ShowVariableTerms();
        definitions.Get().Open();
    };
    window.onResize = [&window, &resize] { resize.ResizeForm(window); };
}

void WireDefinitions(Definitions& definitions, Resize& resize) {
    definitions.definition_list.onClick = [&definitions] { definitions.ShowSelectedTerm(); };
    definitions.onResize = [&definitions, &resize] { resize.ResizeForm(definitions); };
}

}  // namespace arbolith
