#pragma once

#include "form_notices.h"
#include "media_search.h"
#include "portable_notices.h"

#include "platform/alert.h"
#include "platform/error.h"

#include <QObject>

#include <memory>

namespace velmora {

class MediaDocument;
class MediaList;
class MediaTable;
class TagForm;
class TagWebBrowser;
struct FormFillInfo;

/** The browser window's controller: it joins the media search, the media table, the tag editor form, the
   preview and the web lookup to each other, and carries out the buttons' actions. */
class VelmoraController : public QObject {
    Q_OBJECT
public:
    /** The forms and DOCUMENT outlive the controller. */
    VelmoraController(MediaList& list, TagForm& form, TagWebBrowser& browser, MediaDocument& document,
                      QObject* parent = nullptr);

    /** The window is loaded: queues the home folder's Movies, Music and Pictures, then the desktop's own
       folders of videos, music and pictures where they are others, and starts the search. */
    void awakeFromNib();

    /** Writes the open file's values into the file. A failure is logged, and everything stays as it is. */
    void saveTag();
    /** Opens the selected file again from disk, dropping all edits; nothing is reopened when no row is
       selected. */
    void revertToSaved();
    /** Takes the edits for settled: nothing asks to save them any more. The file, the form and the values
       stay. */
    void removeTag();

    /** Opens the file again whose edits were kept last, and puts them back. What stands in the way is said on
       a sheet; the edits stay kept then. */
    void restoreUnsavedEdits();

    /** Asks where the open file is now, which is not in its old place any more, or the file whose edits were
       kept last. It is listed and opened there, and the edits are put back. */
    void locateFile();
    void locateKeptFile();

    /** Asks for a place, and saves the open file there with its changes. The copy is listed and opened. */
    void saveCopy();
    /** Where the panel did not give what is saved its whole name, and that name is taken, it asks again. */
    void copyPlaceSelected(int returnCode, const QStringList& paths);

    /** Takes the open file's cover away. A save in place leaves it in the file, and the user is told. */
    void deleteCover();
    /** Asks, and deletes every tag of the open file, those of other programs included. */
    void deleteAllTags();

    void addFile();
    void addFileSelected(int returnCode, const QStringList& paths);
    void addFolder();
    void addFolderSelected(int returnCode, const QStringList& paths);
    /** Asks for an image file, starting in the open file's folder. */
    void loadCoverArt();
    void loadCoverArtSelected(int returnCode, const QStringList& paths);
    /** Takes the frame that the preview shows as cover art. */
    void grabFrame();
    /** Trims a border of one colour off the cover art. */
    void trimBorder();

    /** Ends a running search. */
    void stopScan() { search_.stopScan(); }
    void startMediaSearch() { search_.startMediaSearch(); }

    /** Lists the file at PATH, whatever its kind and size. False, with nothing listed, when its attributes
       can't be read. */
    bool addMediaFile(const QString& path);

    /** Lists the files among PATHS and searches the folders, in their order. What is neither, or can't be
       read, is said on the log and left out. */
    void addPaths(const QStringList& paths);
    /** Adds PATHS; where they are a single file, it is selected, too, and so opened. */
    void openPaths(const QStringList& paths);

    void clearUI();
    void fillUI();

    /** Shows the result of a web lookup. Null changes nothing. */
    void fillFields(const FormFillInfo* info);

    [[nodiscard]] TagForm& form() { return form_; }
    [[nodiscard]] MediaTable& table();
    [[nodiscard]] MediaSearch& search() { return search_; }

private:
    void askForCopyPlace(const QString& start);
    void connectSearch();
    void connectList();
    void connectForm();
    void connectPortableTags();
    void saveEnded(const SaveEnd& end);
    void showFileAgain();
    void tellOpenFile();
    void showOpenError(const Error& error);
    /** How the document opens a file at a place that the user shows. */
    using OpenWithEdits = bool (MediaDocument::*)(const QUrl& place, Error* error);
    void askForPlace(const QString& former, OpenWithEdits open);
    void openWithEdits(const QString& path, OpenWithEdits open);
    void showRestoredEdits();
    [[nodiscard]] bool isListed(const QString& path);

    MediaList& list_;
    TagForm& form_;
    MediaDocument& document_;
    MediaSearch search_;
    std::unique_ptr<Alert> question_; ///< the last one, maybe still on the screen
    PortableNotices notices_;
    FormNotices formNotices_;
};

} // namespace velmora
