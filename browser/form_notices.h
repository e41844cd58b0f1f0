#pragma once

#include "save_end.h"

#include <QObject>

namespace velmora {

class MediaDocument;
class NoticeBar;
class TagForm;

/** Tells the user, in the line above the form, what of it a save would not store or would store unasked: a
   cover from the folder, fields that a web lookup filled, a cover that is only shown. With portable tags
   there is nothing of that to tell. Also tells which files could not be added to the list. */
class FormNotices : public QObject {
    Q_OBJECT
public:
    /** All outlive the object. */
    FormNotices(MediaDocument& document, TagForm& form, NoticeBar& bar, QObject* parent = nullptr);

    /** The files at PATHS, if there are any, were to be added to the list, and could not be. */
    void tellNotAdded(const QStringList& paths);

    /** The changes were taken for settled. */
    void changesSettled();

private:
    void tellFolderImage();
    void tellFilledFields();
    void storeFilledFields();
    void tellShownCover();
    void saveEnded(const SaveEnd& end);

    MediaDocument& document_;
    TagForm& form_;
    NoticeBar& bar_;
};

} // namespace velmora
