// A person at the forms who does, one after the other, things that make sense where they are done.
#pragma once

#include "form_script/driver.h"
#include "fuzz/dice.h"

#include <iosfwd>
#include <map>
#include <string>

namespace arbolith {

class Walk {
public:
    /// Every action is first written to `log` as a line of a form script. All must outlive the
    /// walk.
    Walk(Application& application, Driver& driver, Dice& dice, std::ostream& log)
        : application_(application), driver_(driver), dice_(dice), log_(log) {}

    /// Does one thing on one of the forms that show; nothing where the program has ended. What
    /// couldn't be done is counted.
    void TakeStep();

    /// How often an action was refused, by the reason.
    const std::map<std::string, int>& Refused() const { return refused_; }

private:
    Form* ChooseForm();
    Control* ChooseControl(const Form& form);
    void ActOn(Control& control);
    void Press(Control& control);
    void Edit(TextBox& box);
    void PickRow(ListBox& list);
    void DragOver(Grid& grid);
    void PickPoint(Chart& chart);
    void MoveWindow(Form& form);
    bool OneIn(std::size_t count) { return dice_.Below(count) == 0; }
    int From(int first, int last) {
        return first + static_cast<int>(dice_.Below(static_cast<std::size_t>(last - first + 1)));
    }
    /// Writes a step of a script.
    void Log(const std::string& step);

    Application& application_;
    Driver& driver_;
    Dice& dice_;
    std::ostream& log_;
    std::map<std::string, int> refused_;
};

}  // namespace arbolith
