#pragma once

#include "platform/message_port.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

#include <optional>

namespace velmora {

/** The ids of what the search worker tells the main thread. */
enum class SearchMessage : int {
    /** Carries the folder's path. */
    EnteringFolder = 100,
    /** Carries the file's path. */
    FoundFile = 101,
    /** Carries nothing; the worker's last one. */
    SearchDone = 102,
};

/** Sends message ID through PORT and waits until it is queued, until DEADLINE at most. TEXT becomes the
   message's one component, its bytes followed by a zero byte; without a text the message has no component. A
   message that could not be queued is lost: its port is gone. */
void send_port_message_simple(const PortSender& port, SearchMessage id, const std::optional<QByteArray>& text,
                              QDeadlineTimer deadline);

/** The path in the first component of MESSAGE, up to its zero byte; empty when it has no component. */
[[nodiscard]] QString messagePath(const PortMessage& message);

} // namespace velmora
