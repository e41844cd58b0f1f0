#pragma once

#include <QMainWindow>

namespace velmora {

/** What a document's window asks before it closes. */
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;
    /** Whether the window may close. */
    [[nodiscard]] virtual bool windowShouldClose() = 0;
    /** The window is closing. */
    virtual void windowWillClose() = 0;
};

/** The window of a document. It asks its delegate before it closes: also while a modal loop runs, so that
   nobody is locked in behind a wait that does not end. */
class DocumentWindow : public QMainWindow {
    Q_OBJECT
public:
    using QMainWindow::QMainWindow;

    /** DELEGATE outlives the window or is taken back with null. */
    void setDelegate(WindowDelegate* delegate) { delegate_ = delegate; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    WindowDelegate* delegate_ = nullptr;
};

} // namespace velmora
