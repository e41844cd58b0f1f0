#pragma once

#include <QObject>

namespace velmora {

/** While it lives, what a person does with keyboard, mouse or a drag reaches no part of the program: a wait
   with a local event loop goes on as if it blocked. Two things pass, so that nobody is locked in behind a
   server that never answers: the closing of a window, and all input while a question (a modal dialog) is
   open. */
class InputBlock : public QObject {
    Q_OBJECT
public:
    InputBlock();

    bool eventFilter(QObject* receiver, QEvent* event) override;
};

} // namespace velmora
