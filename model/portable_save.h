#pragma once

#include <QString>

#include <functional>

namespace velmora {

/** How a save of the tags that other programs read ended. */
struct PortableSaveResult {
    enum class End {
        Saved,
        Unchanged, ///< the file says already what it was to say
        Cancelled,
        MoreLinks, ///< further hard links of the file would keep the old contents
        Failed,
    };

    End end = End::Failed;
    QString reason;  ///< why it was not saved: one sentence of the user's language without a full stop
    QString warning; ///< it was saved, and yet; empty for none
    bool anotherPlaceHelps =
        false; ///< it was the file's folder or disk that refused, and a copy elsewhere may succeed
    bool othersReadIt = true; ///< false: other programs read no tag in files of this kind

    [[nodiscard]] bool isSaved() const { return end == End::Saved || end == End::Unchanged; }
};

/** Called now and then with the bytes done and those to do; false cancels. */
using PortableProgress = std::function<bool(quint64 done, quint64 total)>;

/** A save with everything that it needs: it may be run on any thread, once, whatever becomes of the MediaFile
   that it came from. Where it fails or is cancelled the file is what it was. */
using PortableSave = std::function<PortableSaveResult(const PortableProgress& progress)>;

} // namespace velmora
