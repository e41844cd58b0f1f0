#pragma once

#include <QObject>
#include <QPointer>

class QAbstractButton;

namespace velmora {

/** While it lives, what a user does with keyboard, mouse or a drag reaches no part of the program: a wait
   with a local event loop goes on as if it blocked. Two things pass, so that nobody is locked in behind a
   server that never answers: the closing of a window, and all input while a question (a modal dialog) is
   open. A third passes when there is a button to end the wait with: clicks on that, the key of its caption's
   letter, and Escape, which clicks it. */
class InputBlock : public QObject {
    Q_OBJECT
public:
    /** A block with WAYOUT, a button, or none. */
    explicit InputBlock(QAbstractButton* wayOut = nullptr);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    [[nodiscard]] bool isForWayOut(const QObject* receiver, const QEvent& event) const;

    QPointer<QAbstractButton> wayOut_;
};

} // namespace velmora
