#include "address_line.h"

#include <QFocusEvent>
#include <QStyle>
#include <QStyleOptionFrame>

namespace velmora {

namespace {

/** What a line keeps free on both sides of its text. */
constexpr int margin = 4;

} // namespace

void AddressLine::setAddress(const QUrl& address) {
    address_ = address.adjusted(QUrl::RemoveUserInfo);
    setAccessibleDescription(wholeText());
    updateText();
}

QString AddressLine::wholeText() const {
    return QString::fromLatin1(address_.toEncoded());
}

void AddressLine::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    updateText();
}

void AddressLine::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    updateText();
    if (event->reason() != Qt::MouseFocusReason && event->reason() != Qt::PopupFocusReason) {
        selectAll();
    }
}

/** The line's own menu takes the focus, too, and copies what is selected. */
void AddressLine::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        updateText();
    }
}

void AddressLine::updateText() {
    const QString shown = hasFocus() ? wholeText() : fittingText();
    if (text() != shown) {
        setText(shown);
        setCursorPosition(0);
    }
}

QString AddressLine::fittingText() const {
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    const int room = style()->subElementRect(QStyle::SE_LineEditContents, &frame, this).width() - 2 * margin;
    const QFontMetrics metrics = fontMetrics();
    QString whole = wholeText();
    if (metrics.horizontalAdvance(whole) <= room) {
        return whole;
    }
    const QString host = QString::fromLatin1(
        address_.adjusted(QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment).toEncoded());
    return metrics.horizontalAdvance(host) <= room ? metrics.elidedText(whole, Qt::ElideRight, room)
                                                   : metrics.elidedText(host, Qt::ElideLeft, room);
}

} // namespace velmora
