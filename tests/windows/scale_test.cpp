#include "window_test.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace arbolith {

namespace {

struct ScaleTest : WindowTest {
    static QFont FontOf(double factor) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * factor);
        return font;
    }

    double PointsOf(const Control& control) {
        return WidgetOf<QWidget>(control).font().pointSizeF();
    }
};

struct ButtonForm : Form {
    ButtonForm(Application& application, int height, Size clientSize = {9000, 6000})
        : Form(application, "ButtonForm", "Buttons", clientSize),
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

TEST_F(ScaleTest, AFormThatTheScreenIsTooSmallForHasSmallerTexts) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    ButtonForm form(application, 375, {screen.width() * 12, screen.height() * 12});
    Open(form);
    const QFont large = FontOf(2);
    WindowOf(form).setFont(large);
    EXPECT_LE(WindowOf(form).width(), screen.width());
    EXPECT_LT(PointsOf(form.button), 0.9 * large.pointSizeF());
    EXPECT_GT(PointsOf(form.button), 6);
    EXPECT_GT(PointsOf(form.heading), PointsOf(form.button));
    WindowOf(form).setFont(FontOf(1));
    EXPECT_DOUBLE_EQ(PointsOf(form.button), FontOf(1).pointSizeF());
}

TEST_F(ScaleTest, ResizingAWindowLeavesItsTextsAsTheyAre) {
    ButtonForm form(application, 375);
    Open(form);
    auto& window = WindowOf(form);
    const QSize first = window.size();
    const double button = PointsOf(form.button);
    const double heading = PointsOf(form.heading);
    for (const double share : {0.8, 0.2, 1.5}) {
        window.resize(first * share);
        EXPECT_DOUBLE_EQ(PointsOf(form.button), button) << share;
        EXPECT_DOUBLE_EQ(PointsOf(form.heading), heading) << share;
    }
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
