// A window that comes into being at its first use.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace arbolith {

template <class Window>
class AtFirstUse {
public:
    using Make = std::function<std::unique_ptr<Window>()>;

    /// `make` creates the window, with its events wired.
    explicit AtFirstUse(Make make) : make_(std::move(make)) {}

    Window& Get() {
        if (!window_) window_ = make_();
        return *window_;
    }
    /// Null until the first use.
    Window* Find() const { return window_.get(); }

private:
    Make make_;
    std::unique_ptr<Window> window_;
};

}  // namespace arbolith
