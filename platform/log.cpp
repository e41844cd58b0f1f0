#include "log.h"

#include "file_path.h"

#include "log_seam/patient_write.h"

#include <QByteArray>

#include <cstdio>

namespace velmora {

void appLog(const QString& text) {
    // Like toUtf8, but a path in the text keeps bytes that are no UTF-8.
    QByteArray line = pathBytes(text);
    if (!line.endsWith('\n')) {
        line += '\n';
    }
    std::size_t rest = static_cast<std::size_t>(line.size());
    write_patiently([&line, &rest] {
        rest -= std::fwrite(line.constData() + line.size() - rest, 1, rest, stderr);
        return rest == 0;
    });
}

} // namespace velmora
