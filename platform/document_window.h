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

/** The window of a document. It asks its delegate before it closes: also while a modal loop runs,
   so that nobody is locked in behind a wait that does not end. A control that gets the keyboard
   is scrolled into view. */
class DocumentWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit DocumentWindow(QWidget* parent = nullptr);

    /** Makes the window small enough for the screen that it is, or will be, shown on. */
    void fitScreen();

    /** DELEGATE outlives the window or is taken back with null. */
    void setDelegate(WindowDelegate* delegate) { delegate_ = delegate; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void showFocus(QWidget* focused);

    WindowDelegate* delegate_ = nullptr;
};

} // namespace velmora
