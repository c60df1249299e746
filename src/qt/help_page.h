// Shows one help page at a time, with its pictures as fine as the screen and no wider than the
// window.
#pragma once

#include <QTextBrowser>

#include <functional>

namespace arbolith {

class HelpPage : public QTextBrowser {
public:
    explicit HelpPage(QWidget* parent = nullptr);

    /// Called for a link to anything but a help page.
    std::function<void(const QUrl& address)> onOtherLink;

    /// Marks every place of the page that holds one of the words, and goes to the first.
    void MarkWords(const QString& words);
    /// Back to the size of letters that the desktop has.
    void ZoomToUsual();

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QVariant Picture(const QUrl& name);
    int RoomForPictures() const;
    void FollowLink(const QUrl& link);
    /// The open page once more, with what shows of it staying in its place.
    void ReadAnew();

    double usualPoints_;
    QUrl shown_;
    int widestPicture_ = 0;  ///< Of the page that is open, as it is meant.
    int shownRoom_ = 0;
};

}  // namespace arbolith
