#include "log.h"

#include <QByteArray>

#include <cstdio>

namespace velmora {

void appLog(const QString& text) {
    QByteArray line = text.toUtf8();
    if (!line.endsWith('\n')) {
        line += '\n';
    }
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    std::fflush(stderr);
}

} // namespace velmora
