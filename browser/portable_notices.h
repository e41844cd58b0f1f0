#pragma once

#include "save_end.h"

#include <QObject>
#include <QThreadPool>

namespace velmora {

class MediaDocument;
class NoticeBar;
struct Notice;

/** Tells the user, in the line above the form, where tags in place and the tags that other programs
   read part ways: after a save, and when a file opens. It changes nothing by itself; what its buttons
   do the document does. */
class PortableNotices : public QObject {
    Q_OBJECT
public:
    /** DOCUMENT and BAR outlive the object. */
    PortableNotices(MediaDocument& document, NoticeBar& bar, QObject* parent = nullptr);
    /** Waits until the file that is looked at, if any, is closed. */
    ~PortableNotices() override;

    /** The document has opened a file, and the form shows it. */
    void fileOpened();
    /** The form shows no file any more. */
    void fileClosed();
    /** The edits of the file at PATH are kept, which could not be saved or opened because of REASON, one
       sentence without a full stop. */
    void editsKept(const QString& path, const QString& reason);
    /** The open file's edits have come back. */
    void editsRestored();
    /** The open file's cover was taken away, which a save in place does not write. */
    void coverDeleted();
    /** A save of the document has ended. */
    void saveEnded(const SaveEnd& end);

signals:
    /** The user wants the edits back that were kept. */
    void restoreWanted();
    /** The user wants the file saved in another place. */
    void copyWanted();
    /** The user wants to show where the open file, or the one whose edits were kept last, is now. */
    void placeWanted();
    void placeOfKeptWanted();

private:
    void lookForMore();
    void savedInPlace();
    void removalEnded(const SaveEnd& end);
    void savedPortably(const SaveEnd& end);
    void failedPortably(const SaveEnd& end);
    /** Offers REMEDY where TEXT says why: a save with portable tags, now or always, or a copy. */
    void offer(SaveObstacle::Remedy remedy, const QString& text);
    void saveAlways();
    void showAlways();
    [[nodiscard]] QString fileName() const;

    MediaDocument& document_;
    NoticeBar& bar_;
    QThreadPool thread_;
    int opened_ = 0; ///< counts the files, so that what is found out of one is not told of another
};

} // namespace velmora
