// A label: plain text, a heading, the headings of a list's columns, or a link to click. The access
// key of one leads to the field behind it.
#include "qt/focus_ring.h"
#include "qt/form_window.h"
#include "qt/scale.h"
#include "qt/text_columns.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace arbolith {

namespace {

// Between a link and the mark of the focus behind it.
constexpr int kMargin = 4;

Qt::Alignment AlignmentOf(const Label::Look& look) {
    const Qt::Alignment vertical = look.wraps ? Qt::AlignTop : Qt::AlignVCenter;
    switch (look.alignment) {
        case Alignment::kRight:
            return vertical | Qt::AlignRight;
        case Alignment::kCentre:
            return vertical | Qt::AlignHCenter;
        case Alignment::kLeft:
            break;
    }
    return vertical | Qt::AlignLeft;
}

class LabelView final : public QLabel, public View {
public:
    LabelView(Label& label, FormWindow& window)
        : QLabel(window.InsideOf(label.Parent())),
          View(label, window, this),
          label_(label),
          columns_(label.GetLook().columns) {
        setTextFormat(Qt::PlainText);
        setAlignment(AlignmentOf(label.GetLook()));
        setWordWrap(label.GetLook().wraps);
        if (label.GetLook().bordered) setFrameStyle(QFrame::Panel | QFrame::Raised);
        if (label.TakesFocus()) setFocusPolicy(Qt::TabFocus);
        for (auto& column : columns_) column.behindTab = false;
        if (label.GetLook().link) setCursor(Qt::PointingHandCursor);
    }

    QAccessible::Role Role() const override {
        if (label_.GetLook().link) return QAccessible::Link;
        return label_.GetLook().bordered ? QAccessible::Button : QAccessible::NoRole;
    }

    void Refresh() override {
        const QString caption = ToShownText(label_.Caption());
        if (text() != caption) setText(caption);
        FindBuddy(caption);
        RefreshFont();
        RefreshWidget();
        if (label_.GetLook().link)
            setForegroundRole(isEnabled() ? QPalette::Link : QPalette::WindowText);
        RefreshBackColor(QPalette::Window, foregroundRole());
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        if (columns_.empty()) {
            QLabel::paintEvent(event);
        } else {
            PaintColumns();
        }
        if (!hasFocus()) return;
        const int shown = label_.GetLook().bordered ? width() : sizeHint().width() + kMargin;
        PaintFocusRing(*this, {0, 0, std::min(width(), shown), height()});
    }

    void mousePressEvent(QMouseEvent* event) override { PassMouse(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { PassMouse(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { PassMouse(*event); }
    void keyPressEvent(QKeyEvent* event) override {
        if (!PassKey(*event)) QLabel::keyPressEvent(event);
    }

private:
    void PaintColumns() {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        // The rows below stand within the edge of their list.
        const int edge = style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
        const QRect line = rect().adjusted(edge, 0, -edge, 0);
        DrawInColumns(painter, line, text(), columns_, line.width());
    }

    void RefreshFont() {
        const Label::Look& look = label_.GetLook();
        if (!look.bold && look.points == 0 && !look.link) return;
        QFont told = Window().TextFont();
        // A told size grows with a large desktop font, so that a heading stays one.
        const double growth = Scale::FontFactor(Window().font()) * Window().TextShare();
        if (look.points != 0) told.setPointSizeF(look.points * growth);
        told.setBold(look.bold);
        told.setUnderline(look.link);
        if (font() != told) setFont(told);
    }

    // Only with a buddy does a label take its access key out of its text.
    void FindBuddy(const QString& caption) {
        if (label_.GetLook().wraps || !caption.contains(u'&')) return;
        const auto& controls = label_.Owner().Controls();
        auto next = std::find(controls.begin(), controls.end(), &label_);
        while (next != controls.end() && !(*next)->TakesFocus()) ++next;
        const View* field = next == controls.end() ? nullptr : Window().ViewOf(**next);
        if (field != nullptr && buddy() != field->Widget()) setBuddy(field->Widget());
    }

    Label& label_;
    TextColumns columns_;
};

}  // namespace

View* MakeLabelView(Label& label, FormWindow& window) {
    return new LabelView(label, window);
}

}  // namespace arbolith
