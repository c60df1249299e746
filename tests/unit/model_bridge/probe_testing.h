// What the tests of the treatment probe share: a run whose model answers with the rows that a test
// wants.
#pragma once

#include "model_bridge/treatment_probe.h"
#include "run_definition/apply_steps.h"
#include "run_definition/commit.h"
#include "run_definition/reset.h"
#include "unit/model_bridge/bridge_testing.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace arbolith {

/// The name of a case of a table.
inline constexpr auto NameOf = [](const auto& test) { return test.param.name; };

class ProbeTest : public testing::Test {
protected:
    ProbeTest() {
        ResetInput(run);
        run.form.txtRotAge.SetText("100");
        ModelGrows({});
    }

    void ModelGrows(const std::vector<ModelRow>& rows) {
        host.model = [this, output = ModelOutput(rows)](const ProgramStart&) {
            folder.Write("_OUTPUT.TMP", output);
        };
    }
    void ChooseHardwood() {
        run.form.Choose_Hwd.SetValue(true);
        run.form.Choose_Swd.SetValue(false);
        ApplyStep1(run);
    }
    void ChooseImperial() {
        run.form.choose_Imperial.SetValue(true);
        run.form.choose_Metric.SetValue(false);
        ApplyStep1(run);
        CommitStep1(run);
    }
    void ChoosePlantation() {
        run.form.chkPlant.SetValue(true);
        run.form.chkNat.SetValue(false);
        run.form.spac1.SetText("2");
        run.form.spac2.SetText("2");
    }
    void TreatAtAge(const std::string& age) {
        run.form.Age1.SetText(age);
        ApplyStep7(run);
    }
    void TreatAtDbh(const std::string& dbh) {
        run.form.Step7_T1DBH.SetValue(true);
        run.form.Step7_T1Age.SetValue(false);
        run.form.DBH1.SetText(dbh);
        ApplyStep7(run);
    }
    // A valid first treatment stands, and a second is asked for.
    void TreatAgainAtAge(const std::string& age) {
        run.form.BA1.SetText("30");
        run.form.Age2.SetEnabled(true);
        run.form.Age2.SetText(age);
    }
    void Probe() { TreatmentProbe(run); }

    static void ExpectOffered(const TextBox& box, const Label& summary, const Label& caption,
                              bool offered) {
        EXPECT_EQ(box.Visible(), offered) << box.Name();
        EXPECT_EQ(box.Enabled(), offered) << box.Name();
        EXPECT_EQ(summary.Visible(), offered) << summary.Name();
        EXPECT_EQ(caption.Visible(), offered) << caption.Name();
    }
    void ExpectFields(bool ba1, bool spacing, bool age2, bool ba2) const {
        const auto& form = run.form;
        ExpectOffered(form.BA1, form.Step7_BA1, form.BA1_lbl, ba1);
        ExpectOffered(form.Spacing, form.Step7_Spac, form.Spac1_lbl, spacing);
        ExpectOffered(form.Age2, form.Step7_Age2, form.Age2_lbl, age2);
        ExpectOffered(form.BA2, form.Step7_BA2, form.BA2_lbl, ba2);
    }

    TestFolder folder;
    FakeHost host;
    Application application{host, folder.Path(), ""};
    RunDefinition run{application};
};

}  // namespace arbolith
