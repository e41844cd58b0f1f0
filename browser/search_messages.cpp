#include "search_messages.h"

#include "platform/file_path.h"

#include <utility>

namespace velmora {

void send_port_message_simple(const PortSender& port, SearchMessage id, const std::optional<QByteArray>& text,
                              QDeadlineTimer deadline) {
    PortMessage message;
    message.id = static_cast<int>(id);
    if (text) {
        QByteArray component = *text;
        component.append('\0');
        message.components.append(component);
    }
    static_cast<void>(port.send(std::move(message), deadline));
}

QString messagePath(const PortMessage& message) {
    const QByteArray component = message.components.value(0);
    const qsizetype end = component.indexOf('\0');
    return pathFromBytes(end < 0 ? component : component.left(end));
}

} // namespace velmora
