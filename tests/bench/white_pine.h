// The stand that the benches run: a natural white pine, entered as a person does.
#pragma once

#include "forms/user_actions.h"
#include "run_definition/main_form.h"

namespace arbolith::bench {

inline constexpr const char* kWhitePineLine =
    "0\tY\tY\tWP\t6\t0.0\t1\t0.0\t0.0\t120\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t";

inline void EnterWhitePine(UserActions& user, MainForm& form) {
    user.Click(form.Step1_Btn);
    user.Click(form.Step3_Btn);
    user.SelectRow(form.lstSpecies, 0);
    user.Click(form.Step4_Btn);
    user.SelectRow(form.Lcap, 5);
    user.Click(form.Step5_Btn);
    user.Type(form.Stocking_Index, "100");
    user.Click(form.Step6_Btn);
    user.Type(form.txtRotAge, "120");
    user.Click(form.Step7_Btn);
}

}  // namespace arbolith::bench
