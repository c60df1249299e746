#include "window_test.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>

namespace arbolith {

namespace {

struct ScaleTest : WindowTest {
    static QFont FontOf(double factor) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * factor);
        return font;
    }
};

struct ButtonForm : Form {
    ButtonForm(Application& application, int height)
        : Form(application, "ButtonForm", "Buttons", {9000, 6000}),
          button(*this, "button", "Graph", {120, 6360, 1455, height}),
          below(*this, "below", "Graph", {120, 6720, 1455, height}) {}

    Button button;
    Button below;
    Label heading{*this, "heading", "Heading", {120, 0, 3000, 375}, {.points = 12}};
};

}  // namespace

TEST_F(ScaleTest, AFormWhoseButtonsHoldTheFontIsNotScaled) {
    const ButtonForm form(application, 375);
    EXPECT_DOUBLE_EQ(Scale::For(form, FontOf(1)).Factor(), 1);
}

TEST_F(ScaleTest, AFormWithoutButtonsIsNotScaled) {
    const Form form(application, "Empty", "Empty", {3000, 3000});
    EXPECT_DOUBLE_EQ(Scale::For(form, FontOf(1)).Factor(), 1);
}

TEST_F(ScaleTest, LowButtonsScaleTheWholeForm) {
    ButtonForm form(application, 255);
    const Scale scale = Scale::For(form, FontOf(1));
    const int height = scale.Pixels(form.button.GetPlace()).height();
    EXPECT_GE(height, 24);
    EXPECT_LE(height, 28);
}

TEST_F(ScaleTest, LowButtonsHoldTheirTextAndStayApart) {
    ButtonForm form(application, 255);
    Open(form);
    const auto& button = WidgetOf<QPushButton>(form.button);
    EXPECT_GE(button.height(), button.sizeHint().height());
    EXPECT_LT(button.geometry().bottom(), WidgetOf<QPushButton>(form.below).geometry().top());
}

TEST_F(ScaleTest, ALargerFontScalesEveryForm) {
    const ButtonForm form(application, 375);
    EXPECT_NEAR(Scale::For(form, FontOf(1.5)).Factor(), 1.5, 0.15);
}

TEST_F(ScaleTest, AnOpenFormFollowsTheFont) {
    ButtonForm form(application, 375);
    Open(form);
    auto& window = WindowOf(form);
    const int before = WidgetOf<QPushButton>(form.button).width();
    const double heading = WidgetOf<QLabel>(form.heading).font().pointSizeF();
    window.setFont(FontOf(2));
    EXPECT_NEAR(WidgetOf<QLabel>(form.heading).font().pointSizeF(), 2 * heading, 1.5);
    EXPECT_GT(WidgetOf<QPushButton>(form.button).width(), before * 3 / 2);
    EXPECT_EQ(form.ClientSize().width, 9000);
}

TEST_F(ScaleTest, AWindowWithLessRoomHasSmallerTextsAsLongAsTheyCanBeRead) {
    ButtonForm form(application, 375);
    Open(form);
    auto& window = WindowOf(form);
    const auto points = [&](const Control& control) {
        return WidgetOf<QWidget>(control).font().pointSizeF();
    };
    const QSize first = window.size();
    const double button = points(form.button);
    const double heading = points(form.heading);
    window.resize(first * 0.8);
    EXPECT_NEAR(points(form.button), 0.75 * button, 0.5);
    EXPECT_NEAR(points(form.heading), 0.75 * heading, 0.7);
    window.resize(first * 0.2);
    EXPECT_NEAR(points(form.button), 6, 0.1);
    window.resize(first * 1.5);
    EXPECT_DOUBLE_EQ(points(form.button), button);
    EXPECT_DOUBLE_EQ(points(form.heading), heading);
}

TEST_F(ScaleTest, WhatTouchesGoesOnTouching) {
    const Scale scale(1.37);
    const QRect left = scale.Pixels(Place{7, 0, 101, 10});
    const QRect right = scale.Pixels(Place{108, 0, 50, 10});
    EXPECT_EQ(left.x() + left.width(), right.x());
}

TEST_F(ScaleTest, PixelsComeBackThroughTwips) {
    for (const double factor : {1.0, 1.37, 2.5}) {
        const Scale scale(factor);
        for (int pixels = 0; pixels < 2000; ++pixels)
            ASSERT_EQ(scale.Pixels(scale.Twips({pixels, 1}).width), pixels) << factor;
    }
}

}  // namespace arbolith
