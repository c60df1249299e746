// The one window class: it builds every form from the form's controls and follows their state.
#pragma once

#include "forms/user_actions.h"
#include "qt/scale.h"
#include "qt/view.h"

#include <QMenuBar>
#include <QWidget>

#include <functional>
#include <unordered_map>

namespace arbolith {

class WindowManager;

/// One form's window. Its client area is what lies below the menu bar. What a person does comes in
/// through the widgets and goes to the form's controls as user actions; the state comes back by
/// Refresh.
class FormWindow : public QWidget {
public:
    FormWindow(Form& form, WindowManager& manager);
    ~FormWindow() override;

    Form& GetForm() const { return form_; }
    const Scale& GetScale() const { return scale_; }
    bool HasManualTimers() const;
    /// The font of the texts: the window's, or a smaller one where the screen has less room.
    QFont TextFont() const { return inside_->font(); }
    /// How much of the window's font's size that one has; at most 1.
    double TextShare() const { return textShare_; }

    /// Shows the state of one control, or of the form itself: title, size, whether it is open.
    void Refresh(const Control& control);
    /// Refreshes a view with the window deaf to what its widget says.
    void Update(View& view);
    /// Puts the keyboard focus where the state has it; null for nowhere.
    void ShowFocus(const Control* focused);
    /// Raises the window and makes it the active one.
    void BringToFront();

    /// Runs a person's action; one that is refused does nothing. False where the form is gone, or
    /// the views are just being refreshed.
    bool Perform(const std::function<void(UserActions&)>& action);
    /// The form is no more, or about to go: the window hides and does not look at it again.
    void Retire();
    bool IsGone() const { return gone_; }

    /// Gives the client area a size in twips that reaches the form exactly, whatever the pixels
    /// round to.
    void RequestClientSize(Size size);

    /// The view of a control; null for a control without one.
    View* ViewOf(const Control& control) const;
    /// The widget that holds the controls of a frame or of the form.
    QWidget* InsideOf(const Control& parent) const;
    /// The menu bar, made at the first call.
    QMenuBar* MenuBar();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Build();
    void AddView(Control& control);
    void RefreshForm();
    void RefreshTopmost();
    void RefreshState();
    void RefreshSize();
    void RefreshPosition();
    QSize RoomOnScreen() const;
    Scale NormalScale() const;
    void FollowFont();
    void FitTexts();
    void RefreshScale();
    void RefreshViews();
    void FollowWindowState();
    void TakeFocusFrom(QObject* watched);
    void ClientSizeChanged();
    int MenuHeight(int width) const;

    Form& form_;
    WindowManager& manager_;
    Scale scale_;
    QMenuBar* menuBar_ = nullptr;
    QWidget* inside_;
    std::unordered_map<const Control*, View*> views_;
    std::unordered_map<const QObject*, Control*> focusTakers_;
    Size firstSize_;
    Scale normalScale_;     ///< While the window isn't maximised.
    double tightness_ = 1;  ///< As the form was told, before it was resized.
    double mostRoom_ = 0;   ///< That it has had with this font, as a share of its told size.
    double textShare_ = 1;
    Size requested_;
    Place shownPlace_;
    bool windowLeads_ = false;
    bool gone_ = false;
};

}  // namespace arbolith
