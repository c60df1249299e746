// What the tests of the windows share: an application with its windows, and a driver that acts on
// them as a person does.
#pragma once

#include "form_script/window_driver.h"
#include "form_script/window_events.h"
#include "forms/controls.h"
#include "forms/grid.h"
#include "qt/form_window.h"
#include "qt/qt_host.h"
#include "qt/view.h"
#include "qt/window_manager.h"

#include <QWidget>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace arbolith {

/// The machine of the tests: as the windows have it, with boxes and beeps recorded.
class BoxRecorder : public QtHost {
public:
    bool ShowBox(const Box& box) override {
        boxes.push_back(box.text);
        return true;
    }
    void Beep() override { ++beeps; }

    std::vector<std::string> boxes;
    int beeps = 0;
};

class WindowTest : public testing::Test {
public:
    WindowTest() { host.SetWindows(&windows); }
    ~WindowTest() override { host.SetWindows(nullptr); }

    /// Shows a form as an event of the program does.
    void Open(Form& form) {
        application.Enter([&] { form.Show(); });
        window_events::ActivateWindowOf(WindowOf(form));
    }

    FormWindow& WindowOf(const Form& form) { return *windows.WindowOf(form); }

    template <class Widget>
    Widget& WidgetOf(const Control& control) {
        return dynamic_cast<Widget&>(*WindowOf(control.Owner()).ViewOf(control)->Widget());
    }

    /// What the program does in an event of its own.
    template <class Event>
    void Do(Event event) {
        application.Enter(event);
    }

    BoxRecorder host;
    Application application{host, "/tmp", ""};
    WindowManager windows{application, true};
    std::unique_ptr<Driver> driver = MakeWindowDriver(application, windows);
};

}  // namespace arbolith
