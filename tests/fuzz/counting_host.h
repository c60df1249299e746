// The host under a fuzzer: boxes are counted and answered with Yes, and no program is ever started.
#pragma once

#include "platform/headless_host.h"

#include <memory>

namespace arbolith {

class CountingHost : public HeadlessHost {
public:
    bool ShowBox(const Box&) override {
        ++boxes;
        return true;
    }
    std::unique_ptr<Process> Start(const ProgramStart&) override { return nullptr; }

    int boxes = 0;
};

}  // namespace arbolith
