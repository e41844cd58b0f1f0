#pragma once

#include "platform/modal_loop.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QList>
#include <QObject>

#include <deque>
#include <functional>
#include <memory>

namespace velmora {

/** A numbered message with any number of byte buffers. */
struct PortMessage {
    int id = 0;
    QList<QByteArray> components;
};

class PortQueue;

/** The end of a port that messages are sent to. Copies share the port; they may live on any thread and longer
   than the port itself. */
class PortSender {
public:
    /** Queues MESSAGE behind all that was sent before; waits for that until DEADLINE at most. False when it
       was not queued in time or the port is gone. */
    [[nodiscard]] bool send(PortMessage message, QDeadlineTimer deadline) const;

private:
    friend class MessagePort;
    explicit PortSender(std::shared_ptr<PortQueue> queue);

    std::shared_ptr<PortQueue> queue_;
};

/** A port into the main loop: messages that any thread sends arrive at the delegate on the main thread, one
   by one, in the order in which they were sent. None arrives while a modal loop runs; they are kept until it
   has ended. A long queue is worked off in slices of a few milliseconds, so that the window answers in
   between.

   Lives on the main thread. Messages that are still queued when the port goes are dropped. */
class MessagePort : public QObject {
    Q_OBJECT
public:
    using Delegate = std::function<void(const PortMessage&)>;

    explicit MessagePort(QObject* parent = nullptr);
    ~MessagePort() override;

    void setDelegate(Delegate delegate);
    /** From now on the event loop serves the port; what was sent before is kept for it. */
    void addToMainLoop();
    [[nodiscard]] PortSender sender() const;

protected:
    bool event(QEvent* event) override;

private:
    void handleQueuedMessages();

    std::shared_ptr<PortQueue> queue_;
    /** Out of the queue and not yet handled. */
    std::deque<PortMessage> taken_;
    Delegate delegate_;
    ModalLoopWatch modalLoopWatch_;
};

} // namespace velmora
