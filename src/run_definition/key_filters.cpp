#include "run_definition/key_filters.h"

#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

#include <algorithm>

namespace arbolith {

namespace {

constexpr int kBackspace = 8;
constexpr int kControlBackspace = 127;

bool PassesAsInteger(int key) {
    return (key >= '0' && key <= '9') || key == kBackspace || key == kControlBackspace;
}

int Refuse(Application& application, int& key) {
    application.GetHost().Beep();
    return key = 0;
}

bool IsNumeric(const std::string& text) {
    try {
        ParseReal(Trimmed(text));
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

}  // namespace

int DecimalFilter(Application& application, int& key, const TextBox& box) {
    const bool firstPoint = key == '.' && box.Text().find('.') == std::string::npos;
    return firstPoint || PassesAsInteger(key) ? key : Refuse(application, key);
}

int IntegerFilter(Application& application, int& key) {
    return PassesAsInteger(key) ? key : Refuse(application, key);
}

void NumOnly(TextBox& box) {
    if (!IsNumeric(box.Text())) box.SetText("0.0");
}

}  // namespace arbolith
