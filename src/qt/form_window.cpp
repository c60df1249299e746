#include "qt/form_window.h"

#include "qt/texts.h"
#include "qt/views.h"
#include "qt/window_manager.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace arbolith {

namespace {

// Texts become smaller in these steps, as a share of their size, and no smaller than these points.
constexpr double kTextStep = 0.05;
constexpr double kSmallestText = 6;
// With so much of the room that they want they stay as they are.
constexpr double kEnough = 0.985;

// A form without a title is shown without a frame, as a splash is.
Qt::WindowFlags FlagsOf(const Form& form) {
    return form.Caption().empty() ? Qt::SplashScreen | Qt::FramelessWindowHint : Qt::Window;
}

WindowState StateOf(Qt::WindowStates states) {
    if (states & Qt::WindowMinimized) return WindowState::kMinimised;
    return states & Qt::WindowMaximized ? WindowState::kMaximised : WindowState::kNormal;
}

Qt::WindowStates StatesOf(WindowState state) {
    switch (state) {
        case WindowState::kMinimised:
            return Qt::WindowMinimized;
        case WindowState::kMaximised:
            return Qt::WindowMaximized;
        case WindowState::kNormal:
            break;
    }
    return Qt::WindowNoState;
}

// The share of their size that texts of so many points have in so much of the room that they want.
double ShareIn(double room, double points) {
    if (room > kEnough) return 1;
    // Letters don't shrink evenly: one step more makes sure of it.
    const double share = (std::floor(room / kTextStep) - 1) * kTextStep;
    return std::clamp(share, std::min(1.0, kSmallestText / points), 1.0);
}

// Focus that comes back by itself: with its window, or when a menu closes.
bool ComesByItself(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

}  // namespace

FormWindow::FormWindow(Form& form, WindowManager& manager)
    : QWidget(nullptr, FlagsOf(form)),
      form_(form),
      manager_(manager),
      inside_(new QWidget(this)),
      firstSize_(form.ClientSize()) {
    setObjectName(ObjectNameOf(form));
    Build();
}

FormWindow::~FormWindow() = default;

bool FormWindow::HasManualTimers() const {
    return manager_.HasManualTimers();
}

void FormWindow::Build() {
    views_.reserve(form_.Controls().size());
    for (Control* control : form_.Controls()) AddView(*control);
    scale_ = normalScale_ = NormalScale();
    tightness_ = Scale::TightnessOf(form_, font());
    RefreshViews();
}

void FormWindow::RefreshViews() {
    for (const auto& [control, view] : views_) view->Refresh();
}

void FormWindow::AddView(Control& control) {
    View* view = MakeView(control, *this);
    if (view == nullptr) return;
    views_.emplace(&control, view);
    QWidget* widget = view->Widget();
    if (widget == nullptr) return;
    widget->setObjectName(ObjectNameOf(control));
    if (!control.TakesFocus()) return;
    focusTakers_.emplace(widget, &control);
    widget->installEventFilter(this);
}

View* FormWindow::ViewOf(const Control& control) const {
    const auto found = views_.find(&control);
    return found == views_.end() ? nullptr : found->second;
}

QWidget* FormWindow::InsideOf(const Control& parent) const {
    const View* view = ViewOf(parent);
    return view == nullptr || view->Widget() == nullptr ? inside_ : view->Widget();
}

QMenuBar* FormWindow::MenuBar() {
    if (menuBar_ == nullptr) menuBar_ = new QMenuBar(this);
    return menuBar_;
}

int FormWindow::MenuHeight(int width) const {
    return menuBar_ == nullptr ? 0 : menuBar_->heightForWidth(width);
}

bool FormWindow::Perform(const std::function<void(UserActions&)>& action) {
    if (gone_ || manager_.IsFlushing()) return false;
    UserActions actions(manager_.GetApplication());
    try {
        action(actions);
    } catch (const ActionRefused&) {
        // The control has just been hidden or disabled, as the person sees.
    }
    return !gone_;
}

void FormWindow::Retire() {
    gone_ = true;
    hide();
}

void FormWindow::Update(View& view) {
    if (!gone_) manager_.WhileFlushing([&] { view.Refresh(); });
}

void FormWindow::Refresh(const Control& control) {
    if (control.Kind() == ControlKind::kForm) {
        RefreshForm();
    } else if (View* view = ViewOf(control)) {
        view->Refresh();
    }
}

void FormWindow::RefreshForm() {
    const QString title = ToQString(form_.Caption());
    if (windowTitle() != title) setWindowTitle(title);
    const bool busy = form_.Pointer() == MousePointer::kHourglass;
    if (busy != testAttribute(Qt::WA_SetCursor)) busy ? setCursor(Qt::WaitCursor) : unsetCursor();
    RefreshTopmost();
    if (form_.Visible()) {
        RefreshScale();
        RefreshState();
        RefreshSize();
        RefreshPosition();
    }
    if (isVisible() != form_.Visible()) setVisible(form_.Visible());
}

// The widget itself would hide when told.
void FormWindow::RefreshTopmost() {
    Qt::WindowFlags flags = windowFlags();
    flags.setFlag(Qt::WindowStaysOnTopHint, form_.Topmost());
    if (flags == windowFlags()) return;
    overrideWindowFlags(flags);
    if (windowHandle() != nullptr) windowHandle()->setFlags(flags);
}

QSize FormWindow::RoomOnScreen() const {
    const QSize available = screen()->availableGeometry().size();
    return available - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

// As the font wants it, but the first size is no larger than the screen has room for.
Scale FormWindow::NormalScale() const {
    const QSize told = Scale().Pixels(firstSize_);
    const QSize room = RoomOnScreen() - QSize(0, MenuHeight(told.width()));
    const double fitting =
        std::min(double(room.width()) / told.width(), double(room.height()) / told.height());
    return Scale(std::min(Scale::For(form_, font()).Factor(), std::max(1.0, fitting)));
}

// On a maximised form 15 twips are a pixel whatever the font: what is told as a share of the screen
// is that share of it, and all else grows with the window anyway.
void FormWindow::RefreshScale() {
    const bool isMaximised = form_.State() == WindowState::kMaximised;
    const Scale wanted = isMaximised ? Scale() : normalScale_;
    if (wanted == scale_) return;
    scale_ = wanted;
    RefreshViews();
}

void FormWindow::RefreshState() {
    if (StateOf(windowState()) == form_.State()) return;
    const auto others = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    setWindowState(others | StatesOf(form_.State()));
}

// A window that would not fit on the screen opens smaller, and the form learns of it.
void FormWindow::RefreshSize() {
    const QSize told = scale_.Pixels(form_.ClientSize());
    const bool isNormal = StateOf(windowState()) == WindowState::kNormal;
    if (!isNormal || windowLeads_ || inside_->size() == told) return;
    const QSize wanted(told.width(), told.height() + MenuHeight(told.width()));
    resize(wanted.boundedTo(RoomOnScreen()));
}

// The place is told for the told size: a window that is larger keeps its middle there.
void FormWindow::RefreshPosition() {
    const Place& place = form_.GetPlace();
    if (place.left == shownPlace_.left && place.top == shownPlace_.top) return;
    shownPlace_ = place;
    const Scale unscaled;
    const QSize told = unscaled.Pixels(form_.ClientSize());
    const QPoint grown((width() - told.width()) / 2, (height() - told.height()) / 2);
    const QPoint wanted = QPoint(unscaled.Pixels(place.left), unscaled.Pixels(place.top)) - grown;
    const QPoint origin = screen()->availableGeometry().topLeft();
    move(std::max(wanted.x(), origin.x()), std::max(wanted.y(), origin.y()));
}

void FormWindow::BringToFront() {
    raise();
    activateWindow();
}

void FormWindow::ShowFocus(const Control* focused) {
    const View* view = focused == nullptr ? nullptr : ViewOf(*focused);
    QWidget* now = focusWidget();
    if (qobject_cast<QMenuBar*>(now) != nullptr) return;
    if (view == nullptr) {
        if (now != nullptr) now->clearFocus();
    } else if (view->Widget() != now) {
        view->Widget()->setFocus(Qt::OtherFocusReason);
    }
}

bool FormWindow::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate && !gone_) manager_.WindowActivated(*this);
    return handled;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusIn || gone_ || manager_.IsFlushing()) return false;
    const auto taker = focusTakers_.find(watched);
    if (taker == focusTakers_.end()) return false;
    if (ComesByItself(static_cast<QFocusEvent*>(event)->reason())) {
        manager_.ShowFocusLater();
        return false;
    }
    Perform([&](UserActions& actions) { actions.Focus(*taker->second); });
    manager_.ShowFocus();
    // The event of a widget that has lost the focus again would leave its caret blinking.
    return QApplication::focusWidget() != watched;
}

bool FormWindow::focusNextPrevChild(bool next) {
    if (gone_ || manager_.IsFlushing()) return false;
    const Control* from = form_.FocusControl();
    Control* to = from == nullptr ? Application::FirstInTabOrder(form_)
                                  : Application::NextInTabOrder(*from, next);
    if (to == nullptr) return false;
    Perform([&](UserActions& actions) { actions.TabTo(*to); });
    return true;
}

// A key that no control took: Enter presses the default button all the same.
void FormWindow::keyPressEvent(QKeyEvent* event) {
    QWidget::keyPressEvent(event);
    if (gone_ || (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)) return;
    for (Control* control : form_.Controls()) {
        if (control->Kind() != ControlKind::kButton || !control->Usable()) continue;
        if (!static_cast<Button*>(control)->IsDefault()) continue;
        Perform([&](UserActions& actions) { actions.Click(*control); });
        return;
    }
}

void FormWindow::resizeEvent(QResizeEvent*) {
    const int menuHeight = MenuHeight(width());
    if (menuBar_ != nullptr) menuBar_->setGeometry(0, 0, width(), menuHeight);
    inside_->setGeometry(0, menuHeight, width(), height() - menuHeight);
    ClientSizeChanged();
    FitTexts();
}

void FormWindow::RequestClientSize(Size size) {
    requested_ = size;
    const QSize pixels = scale_.Pixels(size);
    resize(pixels.width(), pixels.height() + MenuHeight(pixels.width()));
    Perform([&](UserActions& actions) { actions.Resize(form_, size); });
}

void FormWindow::ClientSizeChanged() {
    if (gone_ || !form_.Visible() || isMinimized()) return;
    const QSize now = inside_->size();
    if (now == scale_.Pixels(form_.ClientSize())) return;
    if (manager_.IsFlushing()) {
        QMetaObject::invokeMethod(
            this, [this] { ClientSizeChanged(); }, Qt::QueuedConnection);
        return;
    }
    const Size size = now == scale_.Pixels(requested_) ? requested_ : scale_.Twips(now);
    Perform([&](UserActions& actions) { actions.Resize(form_, size); });
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) FollowFont();
    if (event->type() == QEvent::WindowStateChange) FollowWindowState();
}

void FormWindow::FollowFont() {
    if (gone_) return;
    normalScale_ = NormalScale();
    manager_.WhileFlushing([this] {
        RefreshViews();
        RefreshForm();
    });
    mostRoom_ = 0;
    FitTexts();
}

// A window that opens with less room than its texts want, being on a small screen, shows them
// smaller, as long as they can be read: so none is cut off. What a person makes smaller keeps its
// texts as they are.
void FormWindow::FitTexts() {
    const double points = font().pointSizeF();
    if (gone_ || points <= 0) return;
    const QSize told = Scale().Pixels(firstSize_);
    const double room = std::min(double(inside_->width()) / told.width(),
                                 double(inside_->height()) / told.height());
    mostRoom_ = std::max(mostRoom_, room);
    const double share = ShareIn(mostRoom_ / Scale::FontFactor(font()) / tightness_, points);
    QFont texts = font();
    if (share < 1) texts.setPointSizeF(points * share);
    if (textShare_ == share && TextFont() == texts) return;
    textShare_ = share;
    inside_->setFont(share < 1 ? texts : QFont());
    manager_.WhileFlushing([this] { RefreshViews(); });
}

void FormWindow::FollowWindowState() {
    const WindowState state = StateOf(windowState());
    if (gone_ || manager_.IsFlushing() || !form_.Visible() || state == form_.State()) return;
    windowLeads_ = true;
    manager_.GetApplication().Enter([&] { form_.SetState(state); });
    windowLeads_ = false;
    ClientSizeChanged();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    Perform([this](UserActions& actions) { actions.Close(form_); });
}

}  // namespace arbolith
