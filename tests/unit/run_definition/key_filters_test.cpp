// Which keys a field lets through.
#include "run_definition/key_filters.h"

#include "unit/run_definition/run_testing.h"

#include <gtest/gtest.h>

namespace arbolith {
namespace {

bool IsDigitKey(int key) {
    return key >= 48 && key <= 57;
}

class KeyFilters : public testing::Test {
protected:
    BareRun bare;
    TextBox& field = bare.form.spac1;

    // The key as the filter leaves it, in the code and in the result alike.
    int AfterDecimalFilter(int key) {
        const int result = DecimalFilter(bare.application, key, field);
        EXPECT_EQ(result, key);
        return result;
    }
    int AfterIntegerFilter(int key) {
        const int result = IntegerFilter(bare.application, key);
        EXPECT_EQ(result, key);
        return result;
    }
};

TEST_F(KeyFilters, IntegerFilterPassesDigitsBackspaceAndCode127) {
    int refused = 0;
    for (int key = 1; key <= 255; ++key) {
        const bool passes = IsDigitKey(key) || key == 8 || key == 127;
        EXPECT_EQ(AfterIntegerFilter(key), passes ? key : 0) << key;
        refused += passes ? 0 : 1;
        EXPECT_EQ(bare.host.beeps, refused) << key;
    }
}

TEST_F(KeyFilters, DecimalFilterPassesThePointToo) {
    int refused = 0;
    for (int key = 1; key <= 255; ++key) {
        const bool passes = IsDigitKey(key) || key == 8 || key == 127 || key == 46;
        EXPECT_EQ(AfterDecimalFilter(key), passes ? key : 0) << key;
        refused += passes ? 0 : 1;
        EXPECT_EQ(bare.host.beeps, refused) << key;
    }
}

TEST_F(KeyFilters, DecimalFilterRefusesASecondPoint) {
    field.SetText("1.");
    EXPECT_EQ(AfterDecimalFilter('.'), 0);
    EXPECT_EQ(bare.host.beeps, 1);
    EXPECT_EQ(AfterDecimalFilter('5'), '5');
    EXPECT_EQ(bare.host.beeps, 1);
}

TEST_F(KeyFilters, DecimalFilterLooksAtTheWholeTextAlsoWhereItIsSelected) {
    field.SetText("1.5");
    field.SelectAll();
    EXPECT_EQ(AfterDecimalFilter('.'), 0);
}

TEST_F(KeyFilters, NumOnlyReplacesWhatIsNoNumber) {
    for (const char* text : {"", " ", "abc", "1.2.3", "12 ft", "."}) {
        field.SetText(text);
        NumOnly(field);
        EXPECT_EQ(field.Text(), "0.0") << "'" << text << "'";
    }
}

TEST_F(KeyFilters, NumOnlyKeepsANumber) {
    for (const char* text : {"0", "12", "1.5", "-3", " 4 ", ".5", "2."}) {
        field.SetText(text);
        NumOnly(field);
        EXPECT_EQ(field.Text(), text);
    }
}

TEST_F(KeyFilters, TheFieldsTakeThisManyCharacters) {
    const auto& form = bare.form;
    for (const TextBox* box :
         {&form.spac1, &form.spac2, &form.Site, &form.txtRotDBH, &form.Spacing, &form.DBH1})
        EXPECT_EQ(box->MaxLength(), 4U) << box->Name();
    for (const TextBox* box :
         {&form.BA1, &form.BA2, &form.Stocking_Index, &form.txtRotAge, &form.Age1, &form.Age2})
        EXPECT_EQ(box->MaxLength(), 3U) << box->Name();
}

}  // namespace
}  // namespace arbolith
