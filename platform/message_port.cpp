#include "message_port.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <chrono>
#include <deque>
#include <mutex>
#include <utility>

namespace velmora {
namespace {

/** How long the messages of one pass through the event loop may take, in milliseconds. */
constexpr qint64 sliceLength = 8;

QEvent::Type messagesWaiting() {
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace

/** The messages on their way, and whom to wake. */
class PortQueue {
public:
    bool push(PortMessage message, QDeadlineTimer deadline) {
        std::unique_lock lock(mutex_, std::defer_lock);
        if (!takeBefore(lock, deadline) || closed_) {
            return false;
        }
        messages_.push_back(std::move(message));
        wakeReceiver();
        return true;
    }

    /** All messages that are queued now, in their order. */
    std::deque<PortMessage> takeAll() {
        const std::lock_guard lock(mutex_);
        return std::exchange(messages_, {});
    }

    /** From now on RECEIVER is woken when messages come: once for all that come until it takes note. */
    void serve(QObject* receiver) {
        const std::lock_guard lock(mutex_);
        receiver_ = receiver;
        if (!messages_.empty()) {
            wakeReceiver();
        }
    }

    /** The receiver takes note that it was woken. */
    void receiverCame() {
        const std::lock_guard lock(mutex_);
        awake_ = false;
    }

    void wakeAgain() {
        const std::lock_guard lock(mutex_);
        wakeReceiver();
    }

    void close() {
        const std::lock_guard lock(mutex_);
        closed_ = true;
        receiver_ = nullptr;
        messages_.clear();
    }

private:
    static bool takeBefore(std::unique_lock<std::timed_mutex>& lock, QDeadlineTimer deadline) {
        if (deadline.isForever()) {
            lock.lock();
            return true;
        }
        return lock.try_lock_until(std::chrono::steady_clock::now() +
                                   std::chrono::nanoseconds(deadline.remainingTimeNSecs()));
    }

    void wakeReceiver() {
        if (!receiver_ || awake_) {
            return;
        }
        awake_ = true;
        // Below input and timers: a flood of messages must not hold up the window.
        QCoreApplication::postEvent(receiver_, new QEvent(messagesWaiting()), Qt::LowEventPriority);
    }

    std::timed_mutex mutex_;
    std::deque<PortMessage> messages_;
    QObject* receiver_ = nullptr;
    bool awake_ = false;
    bool closed_ = false;
};

PortSender::PortSender(std::shared_ptr<PortQueue> queue) : queue_(std::move(queue)) {}

bool PortSender::send(PortMessage message, QDeadlineTimer deadline) const {
    return queue_->push(std::move(message), deadline);
}

MessagePort::MessagePort(QObject* parent)
    : QObject(parent), queue_(std::make_shared<PortQueue>()),
      modalLoopWatch_([this] { queue_->wakeAgain(); }) {}

MessagePort::~MessagePort() {
    queue_->close();
}

void MessagePort::setDelegate(Delegate delegate) {
    delegate_ = std::move(delegate);
}

void MessagePort::addToMainLoop() {
    queue_->serve(this);
}

PortSender MessagePort::sender() const {
    return PortSender(queue_);
}

bool MessagePort::event(QEvent* event) {
    if (event->type() != messagesWaiting()) {
        return QObject::event(event);
    }
    handleQueuedMessages();
    return true;
}

void MessagePort::handleQueuedMessages() {
    queue_->receiverCame();
    QElapsedTimer slice;
    slice.start();
    // A handler may start a modal loop, or ask for the port to be deleted.
    while (ModalLoop::depth() == 0) {
        if (taken_.empty()) {
            taken_ = queue_->takeAll();
        }
        if (taken_.empty()) {
            return;
        }
        if (slice.elapsed() >= sliceLength) {
            queue_->wakeAgain();
            return;
        }
        const PortMessage message = std::move(taken_.front());
        taken_.pop_front();
        if (delegate_) {
            delegate_(message);
        }
    }
}

} // namespace velmora
