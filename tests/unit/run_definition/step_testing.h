// What the tests of the steps ask: which one is shown, and what was told.
#pragma once

#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>
#include <string>

namespace arbolith {

class StepTest : public RunningTest {
protected:
    // The step that is shown by its frame, its help and the caption above; 0 for none.
    int Shown() {
        const Frame* frames[] = {&form.Step1, &form.Step2, &form.Step3, &form.Step4,
                                 &form.Step5, &form.Step6, &form.Step7};
        const Label* helps[] = {&form.Help1, &form.Help2, &form.Help3, &form.Help4,
                                &form.Help5, &form.Help6, &form.Help7};
        int shown = 0;
        for (int step = 1; step <= 7; ++step) {
            const bool visible = frames[step - 1]->Visible();
            EXPECT_EQ(helps[step - 1]->Visible(), visible) << "help " << step;
            if (visible) {
                EXPECT_EQ(shown, 0) << "two steps at once";
                shown = step;
            }
        }
        EXPECT_EQ(form.Options_Help.Visible(), shown == 0);
        EXPECT_EQ(form.Options.Caption(),
                  shown == 0 ? "Options:" : "Step " + std::to_string(shown) + ":");
        EXPECT_EQ(form.Help4a.Visible(), shown == 4);
        return shown;
    }
    void ExpectInputError(const std::string& text) {
        ASSERT_EQ(host.boxes.size(), 1U);
        EXPECT_EQ(host.boxes[0].text, text);
        EXPECT_EQ(host.boxes[0].title, "Input Error");
        EXPECT_EQ(host.boxes[0].icon, BoxIcon::kExclamation);
        EXPECT_EQ(host.boxes[0].buttons, BoxButtons::kOk);
        host.boxes.clear();
    }
};

}  // namespace arbolith
