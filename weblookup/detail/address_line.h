#pragma once

#include <QLineEdit>
#include <QUrl>

namespace velmora {

/** Shows the address of a page, to be read and copied. What could pass for another address is not shown as it
   came: a user name and a password are left out, and letters other than ASCII stand percent-escaped or, in
   the host, as IDNA writes them.

   An address that is too long for the line loses the front of its host first, whose end tells whose page it
   is, then the end of its path. With the keyboard's focus the line holds the whole address. */
class AddressLine : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

    /** Shows ADDRESS; nothing for an empty one. */
    void setAddress(const QUrl& address);
    /** The address as it is shown where there is room for it. */
    [[nodiscard]] QString wholeText() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void updateText();
    [[nodiscard]] QString fittingText() const;

    QUrl address_;
};

} // namespace velmora
