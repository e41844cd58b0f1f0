#pragma once

#include "browser/save_end.h"
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

    /** Whether files are opened and saved with portable tags, those that other programs
       read, and not in place. */
    [[nodiscard]] virtual bool portableTags() const { return false; }
    /** Switches that, and opens the open file again; changes of it are asked about first. False, with nothing
       switched, when the user cancelled. */
    virtual bool setPortableTags(bool portable) { return !portable; }
    /** Why the open file's portable tags could not be read, as one sentence without a full stop; empty when
       they could, or nobody tried. */
    [[nodiscard]] virtual QString portableObstacle() const { return {}; }
    /** Writes the open file's changes into its portable tags, however files are opened, and settles them.
       False when they were not written, or no file is open. BREAK_LINKS: see MediaFile::portableSave. */
    virtual bool savePortably(bool breakLinks) {
        static_cast<void>(breakLinks);
        return false;
    }

    /** Makes a copy of the open file at PATH, in place of what is there, and writes the open file's changes
       into the copy's portable tags; the open file is only read. They are settled then. False when that
       failed, or no file is open. */
    virtual bool saveCopy(const QString& path) {
        static_cast<void>(path);
        return false;
    }
    /** Deletes every tag of the open file, with its changes, and opens it again. False when that failed, and
       then the changes are still there; false also when no file is open. BREAK_LINKS: see portableRemoval. */
    virtual bool deleteAllTags(bool breakLinks) {
        static_cast<void>(breakLinks);
        return false;
    }
    /** Whether there are edits of a file that could not be saved before another one took its place. They are
       kept until the program ends. */
    [[nodiscard]] virtual bool hasUnsavedEdits() const { return false; }
    /** Where the file was whose edits were kept last; empty when there are none. */
    [[nodiscard]] virtual QString pathOfUnsavedEdits() const { return {}; }
    /** Opens the file again whose edits were kept last, in place of the open one, and makes them once more;
       they count as a change. False when it can't be opened, with ERROR (may be null) filled, or the user
       cancelled; the edits are still kept then. */
    virtual bool restoreUnsavedEdits(Error* error) {
        static_cast<void>(error);
        return false;
    }

    /** Opens the file at PLACE, where the one with the edits that were kept last is now, and makes them
       there. False when it can't be opened, with ERROR (may be null) filled, or the user cancelled; the edits
       are still kept then. */
    virtual bool restoreUnsavedEditsAt(const QUrl& place, Error* error) {
        static_cast<void>(place);
        static_cast<void>(error);
        return false;
    }
    /** Opens the file at PLACE, where the user has found the open one that is not in its old place any more,
       and makes the edits there; they count as a change. False, with ERROR (may be null) filled and
       everything as it was, when it can't be opened; false also when no file is open. */
    virtual bool takeEditsTo(const QUrl& place, Error* error) {
        static_cast<void>(place);
        static_cast<void>(error);
        return false;
    }

signals:
    /** An attempt to save the open file has ended. */
    void saveEnded(const velmora::SaveEnd& end);
    /** Files are opened and saved with portable tags from now on, or in place; also when that was refused. */
    void portableTagsChanged(bool portable);
    /** The open file was opened again. */
    void openedAgain();
    /** The form shows another file, or none. */
    void openFileChanged();
    /** There are unsaved edits of closed files, or none any more. */
    void hasUnsavedEditsChanged(bool hasSome);
    /** The edits of the file at PATH were kept: it is closed, and could not be saved because of REASON, one
       sentence without a full stop. */
    void editsKept(const QString& path, const QString& reason);
};

} // namespace velmora
