// What tests of forms stand on: an application, a shown form, and a log of the events in order.
#pragma once

#include "forms/controls.h"
#include "forms/user_actions.h"
#include "unit/platform/fake_host.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace arbolith {

using Log = std::vector<std::string>;

class FormsTest : public ::testing::Test {
protected:
    /// A handler that puts a line into the log.
    Handler Note(const std::string& line) {
        return [this, line] { log.push_back(line); };
    }
    /// Notes the focus events of a control by its name.
    void NoteFocus(Control& control) {
        control.onGotFocus = Note(control.Name() + " got");
        control.onLostFocus = Note(control.Name() + " lost");
    }
    /// The log so far, which is then empty.
    Log TakeLog() { return std::exchange(log, {}); }

    FakeHost host;
    Application application{host, "/folder", "\"command line\""};
    UserActions actions{application};
    Form form{application, "Test_Form", "Title", {6000, 4500}};
    Log log;
};

}  // namespace arbolith
