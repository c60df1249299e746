// Makes a form's controls grow and shrink with the form: each control's place is scaled by the
// ratio of the client area now to that of the form's first resize event, in steps of one per cent.
#pragma once

#include "forms/form.h"

#include <cstdint>
#include <string>
#include <vector>

namespace arbolith {

class Resize {
public:
    /// Scales every control of the form. The first call for a form registers its layout, which is
    /// the base from then on. Calls while another is at work are dropped.
    void ResizeForm(Form& form);

private:
    struct FormLayout {
        std::string Name;
        std::int32_t Top, Left, Height, Width;
        std::int32_t ScaleHeight, ScaleWidth;
    };
    struct ControlLayout {
        std::string Name;
        std::int32_t Index;
        std::string FormName;
        std::int32_t Top, Left, Height, Width;
    };

    int FindFormIndex(const Form& form) const;
    int FindControlIndex(const Control& control, const std::string& formName) const;
    int RegisterForm(const Form& form);
    int RegisterControl(const Control& control, const std::string& formName);
    int WidthPercent(const Form& form);
    int HeightPercent(const Form& form);
    void ResizeControl(Control& control, const Form& form);
    void ResizeControls(const Form& form);

    std::vector<FormLayout> forms_;
    std::vector<ControlLayout> controls_;
    bool busy_ = false;
};

}  // namespace arbolith
