// The names under which assistive technology tells the controls.
#include "qt/accessible_names.h"

#include "forms/application.h"
#include "forms/controls.h"
#include "forms/grid.h"
#include "platform/headless_host.h"

#include <gtest/gtest.h>

namespace arbolith {

namespace {

struct NamesForm : Form {
    explicit NamesForm(Application& application)
        : Form(application, "Chart_Opt", "Names", {6000, 4000}) {}

    Frame outer{*this, "outer", "&Outer", {0, 0, 3000, 3000}};
    TextBox alone{outer, "alone", {0, 0, 1000, 300}};
    Button numbered{outer, "numbered", "1", {0, 0, 300, 300}};
    Label label{outer, "label", "  B.&A.  Reduction: ", {0, 0, 300, 300}};
    TextBox field{outer, "field", {0, 0, 1000, 300}};
    Label first{outer, "first", "", {0, 0, 300, 300}};
    Label second{outer, "second", "", {0, 0, 300, 300}};
    Frame inner{outer, "inner", "", {0, 0, 3000, 3000}};
    ListBox list{inner, "list", {0, 0, 300, 300}};
    Option option{inner, "option", "&Age", {0, 0, 300, 300}};
    TextBox age{inner, "age", {0, 0, 300, 300}};
    Label wrapped{inner, "wrapped", "softwood & hardwood", {0, 0, 300, 300}, {.wraps = true}};
    TextBox told{*this, "XMax", {0, 0, 300, 300}};
};

struct AccessibleNames : testing::Test {
    HeadlessHost host;
    Application application{host, "/tmp", ""};
    NamesForm form{application};
};

}  // namespace

TEST_F(AccessibleNames, ACaptionIsTheNameWithoutItsAccessKey) {
    EXPECT_EQ(AccessibleNameOf(form.option), "Age");
    EXPECT_EQ(AccessibleNameOf(form.label), "B.A. Reduction");
    EXPECT_EQ(AccessibleNameOf(form.wrapped), "softwood & hardwood");
}

TEST_F(AccessibleNames, AFieldIsNamedByTheLabelInFrontInItsFrame) {
    EXPECT_EQ(AccessibleNameOf(form.field), "B.A. Reduction");
    EXPECT_EQ(AccessibleNameOf(form.age), "Age");
}

TEST_F(AccessibleNames, AFieldWithoutALabelIsNamedByItsFrame) {
    EXPECT_EQ(AccessibleNameOf(form.alone), "Outer");
    EXPECT_EQ(AccessibleNameOf(form.list), "list");
}

TEST_F(AccessibleNames, AnEmptyLabelIsNamedByTheOneThatSaysWhatItHolds) {
    form.first.SetCaption("30 %");
    EXPECT_EQ(AccessibleNameOf(form.first), "30 %");
    EXPECT_EQ(AccessibleNameOf(form.second), "B.A. Reduction");
}

TEST_F(AccessibleNames, AButtonWithANumberIsNamedByTheLabelBehindAsWell) {
    EXPECT_EQ(AccessibleNameOf(form.numbered), "1 B.A. Reduction");
}

TEST_F(AccessibleNames, AFrameWithoutACaptionHasNone) {
    EXPECT_EQ(AccessibleNameOf(form.outer), "Outer");
    EXPECT_EQ(AccessibleNameOf(form.inner), "");
}

TEST_F(AccessibleNames, SomeAreTold) {
    EXPECT_EQ(AccessibleNameOf(form.told), "X Axis Max");
}

}  // namespace arbolith
