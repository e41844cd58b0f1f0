#include "log.h"

#include "file_path.h"

#include <QByteArray>

#include <cstdio>

namespace velmora {

void appLog(const QString& text) {
    // Like toUtf8, but a path in the text keeps bytes that are no UTF-8.
    QByteArray line = pathBytes(text);
    if (!line.endsWith('\n')) {
        line += '\n';
    }
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    std::fflush(stderr);
}

} // namespace velmora
