#pragma once

#include <QObject>

namespace velmora {

/** The questions that the application asks before it ends. */
class ApplicationDelegate {
public:
    enum class TerminateReply { Cancel, Now };

    virtual ~ApplicationDelegate() = default;
    [[nodiscard]] virtual bool applicationShouldTerminateAfterLastWindowClosed() = 0;
    [[nodiscard]] virtual TerminateReply applicationShouldTerminate() = 0;
};

/** Ends the application in order: every way out (the quit command, the last window's close) comes here, and
   the delegate is asked once. */
class ApplicationTermination : public QObject {
    Q_OBJECT
public:
    /** Takes the place of Qt's own quitting with the last window. */
    explicit ApplicationTermination(QObject* parent = nullptr);

    /** DELEGATE must outlive this object, or be taken back with null. */
    void setDelegate(ApplicationDelegate* delegate) { delegate_ = delegate; }

    /** Asks the delegate and, when it agrees, ends the event loop with code 0. A second call while the first
       one asks, or after it was granted, does nothing. */
    void terminate();

    /** Whether the end was granted. Nothing in the program calls it. */
    [[nodiscard]] bool isTerminating() const { return terminating_; }

private:
    void lastWindowClosed();

    ApplicationDelegate* delegate_ = nullptr;
    bool asking_ = false;
    bool terminating_ = false;
};

} // namespace velmora
