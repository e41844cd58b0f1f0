#pragma once

#include "platform/document.h"

namespace velmora {

class MediaFile;

/** What the browser window needs of the document that owns it. */
class MediaDocument : public Document {
    Q_OBJECT
public:
    using Document::Document;

    /** The open media file, owned by the document; null when none is open. Good until the next readFromURL or
       question about unsaved changes. */
    [[nodiscard]] virtual MediaFile* mediaFile() const = 0;

    /** Writes the open file's metadata into the file. False, with ERROR (may be null) filled, when that
       failed; false also when no file is open. The change count stays as it is. */
    virtual bool saveMediaFile(Error* error) = 0;
};

} // namespace velmora
