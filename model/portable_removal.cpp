#include "portable_removal.h"

#include "detail/portable_result.h"

#include "platform/file_path.h"
#include "taglib/trace.h"

namespace velmora {

PortableSave portableRemoval(const QString& path, bool breakLinks) {
    return [path = pathBytes(path).toStdString(), breakLinks](const PortableProgress& progress) {
        const TraceMute mute; // the log is that of the tags in place
        portable::SaveOptions options;
        options.break_links = breakLinks;
        options.progress = progress;
        return resultOf(portable::remove_tags(path, options));
    };
}

} // namespace velmora
