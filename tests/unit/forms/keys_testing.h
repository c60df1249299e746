// What the tests of the keyboard share: two fields on a form that shows.
#pragma once

#include "unit/forms/forms_test.h"

#include <cctype>
#include <string>

namespace arbolith {

inline Key Character(char c) {
    return {Key::kCharacter, static_cast<unsigned char>(c)};
}

class KeysTest : public FormsTest {
protected:
    void SetUp() override { form.Show(); }

    // Lets digits and control keys through, and notes each key that it is asked about.
    KeyHandler DigitFilter() {
        return [this](int& key) {
            log.push_back("key " + std::to_string(key));
            if (key >= ' ' && std::isdigit(key) == 0) key = 0;
        };
    }

    TextBox box{form, "box", {}, 4};
    TextBox next{form, "next"};
};

}  // namespace arbolith
