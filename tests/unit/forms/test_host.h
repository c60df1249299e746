// A host for tests of forms: boxes are noted and answered, programs are never started.
#pragma once

#include "platform/headless_host.h"

#include <string>
#include <vector>

namespace arbolith {

class TestHost : public HeadlessHost {
public:
    bool ShowBox(const Box& box) override {
        boxes.push_back(box);
        return answer;
    }
    void Beep() override { ++beeps; }
    std::unique_ptr<Process> Start(const ProgramStart&) override { return nullptr; }
    void WaitForEnd(Process&, const std::function<bool()>&) override {}
    Size ScreenSize() override { return {15360, 11520}; }
    void EndProgram() override { ++ends; }

    std::vector<Box> boxes;
    bool answer = true;
    int beeps = 0;
    int ends = 0;
};

}  // namespace arbolith
