#include "qt/help_page.h"

#include <QFileInfo>
#include <QImage>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>

#include <cmath>

namespace arbolith {

namespace {

constexpr int kMargin = 16;
constexpr int kLeastPicture = 100;
constexpr const char* kFineEnding = "@2x.png";

QString FineVariant(const QString& path) {
    const auto fine = path.chopped(4) + kFineEnding;
    return path.endsWith(".png") && QFileInfo::exists(fine) ? fine : QString();
}

bool IsHelpPage(const QUrl& address) {
    const auto path = address.path();
    return (address.isLocalFile() || address.isRelative()) &&
           (path.endsWith(".html") || path.endsWith(".htm") || path.isEmpty());
}

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent), usualPoints_(font().pointSizeF()) {
    document()->setDocumentMargin(kMargin);
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::FollowLink);
}

void HelpPage::FollowLink(const QUrl& link) {
    const auto address = source().resolved(link);
    if (IsHelpPage(address)) {
        setSource(address);
    } else if (onOtherLink) {
        onOtherLink(address);
    }
}

void HelpPage::MarkWords(const QString& words) {
    QList<ExtraSelection> marks;
    QTextCharFormat look;
    look.setBackground(Qt::yellow);
    look.setForeground(Qt::black);
    for (const auto& word : words.simplified().split(u' ', Qt::SkipEmptyParts))
        for (auto at = document()->find(word); !at.isNull(); at = document()->find(word, at))
            marks.push_back({at, look});
    setExtraSelections(marks);
    if (marks.isEmpty()) return;
    auto first = marks.constFirst().cursor;
    for (const auto& mark : marks)
        if (mark.cursor.position() < first.position()) first = mark.cursor;
    first.clearSelection();
    setTextCursor(first);
    ensureCursorVisible();
}

void HelpPage::ZoomToUsual() {
    auto usual = font();
    usual.setPointSizeF(usualPoints_);
    setFont(usual);
}

// A page comes through here however it was reached.
QVariant HelpPage::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::ImageResource) return Picture(name);
    if (type == QTextDocument::HtmlResource) {
        shown_ = name;
        widestPicture_ = 0;
        shownRoom_ = RoomForPictures();
        setExtraSelections({});
    }
    return QTextBrowser::loadResource(type, name);
}

// A fine picture has twice the pixels; it is shown in the same size.
QVariant HelpPage::Picture(const QUrl& name) {
    const auto path = shown_.resolved(name).toLocalFile();
    const auto fine = devicePixelRatioF() > 1 ? FineVariant(path) : QString();
    QImage picture(fine.isEmpty() ? path : fine);
    if (picture.isNull()) return {};
    if (!fine.isEmpty()) picture.setDevicePixelRatio(2);
    const int meant = static_cast<int>(std::lround(picture.deviceIndependentSize().width()));
    widestPicture_ = std::max(widestPicture_, meant);
    if (meant <= RoomForPictures()) return picture;
    const double ratio = devicePixelRatioF();
    // Pictures with a colour table are scaled in full colours, by several threads, and not in
    // place.
    auto smaller =
        picture.convertToFormat(QImage::Format_ARGB32)
            .scaledToWidth(static_cast<int>(RoomForPictures() * ratio), Qt::SmoothTransformation);
    smaller.setDevicePixelRatio(ratio);
    return smaller;
}

// Whether a scroll bar shows makes no difference: a picture's size would decide on it, and it on
// the picture's size.
int HelpPage::RoomForPictures() const {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return std::max(contentsRect().width() - bar - 2 * kMargin, kLeastPicture);
}

// Pictures that were, or would now be, wider than the window take their new size.
void HelpPage::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    const int room = RoomForPictures();
    if (room != shownRoom_ && widestPicture_ > std::min(room, shownRoom_)) ReadAnew();
}

// Links keep the colour that they are read with.
void HelpPage::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty()) ReadAnew();
}

void HelpPage::ReadAnew() {
    const double place =
        1.0 * verticalScrollBar()->value() / std::max(verticalScrollBar()->maximum(), 1);
    reload();
    verticalScrollBar()->setValue(
        static_cast<int>(std::lround(place * verticalScrollBar()->maximum())));
}

}  // namespace arbolith
