// A window for the result of a run, with the controls that the single run driver fills.
#pragma once

#include "forms/application.h"
#include "model_bridge/yield_table.h"

#include <string>

namespace arbolith {

class ResultWindow : public YieldTable {
public:
    explicit ResultWindow(Application& application) : form_(application) {}

    Form& Window() override { return form_; }
    Grid& Table() override { return form_.table; }
    Label& Title() override { return form_.title; }
    Label& YTBH() override { return form_.years; }
    void SetReportTexts(const std::string& ytbh, const std::string& runLine) override {
        reportYears = ytbh;
        reportRunLine = runLine;
    }
    void EnableGraphs() override {
        ++timesGraphsEnabled;
        wasShownForGraphs = form_.Visible();
    }
    void CopySelection() override { copies.push_back(form_.table.Clip()); }

    std::string reportYears;
    std::string reportRunLine;
    int timesGraphsEnabled = 0;
    bool wasShownForGraphs = false;
    std::vector<std::string> copies;

private:
    struct ResultForm : Form {
        explicit ResultForm(Application& application)
            : Form(application, "Output", "Output", {9135, 7065}) {}
        Grid table{*this, "Table", {}};
        Label title{*this, "Title", "an earlier heading"};
        Label years{*this, "YTBH", ""};
    };
    ResultForm form_;
};

}  // namespace arbolith
