#pragma once

#include "browser/media_document.h"
#include "browser/portable_save_run.h"
#include "model/MediaFile.h"
#include "platform/application.h"
#include "platform/document_window.h"

#include <QEventLoop>
#include <QList>

#include <memory>
#include <vector>

namespace Ui {
class MyDocument;
}

namespace velmora {

class LibraryWindow;
class MediaList;
class StatusLine;
class TagForm;
class TagWebBrowser;
class VelmoraController;

/** The application's one document: the media file that is open in the editor, the window that shows it, and
   the question about unsaved changes. Opening a file swaps the media file; the model does all reading and
   writing. */
class MyDocument : public MediaDocument, public ApplicationDelegate, public WindowDelegate {
    Q_OBJECT
public:
    /** TERMINATION outlives the document. */
    explicit MyDocument(ApplicationTermination& termination, QObject* parent = nullptr);
    ~MyDocument() override;

    /** The name of the window layout. */
    [[nodiscard]] static QString windowNibName();
    /** Makes the window from its layout, unshown, and its controller. */
    void makeWindow();
    void showWindow();
    /** The window is made: from now on the application asks this document before it ends. */
    void windowControllerDidLoadNib();

    /** The data path of the document framework is idle: no data, and any data will do. Nothing in
       the program calls it. */
    [[nodiscard]] static QByteArray dataRepresentationOfType(const QString& type);
    [[nodiscard]] static bool loadDataRepresentation(const QByteArray& data, const QString& type);

    /** The application's name, whatever file is open. */
    [[nodiscard]] QString displayName() const override;
    /** False when no file is open, however many changes were counted. */
    [[nodiscard]] bool isDocumentEdited() const override;
    [[nodiscard]] MediaFile* mediaFile() const override { return mediaFile_.get(); }

    bool readFromURL(const std::optional<QUrl>& url, const QString& type, Error* error) override;
    bool saveMediaFile(Error* error) override;
    [[nodiscard]] bool portableTags() const override { return portableTags_; }
    bool setPortableTags(bool portable) override;
    [[nodiscard]] QString portableObstacle() const override { return portableObstacle_; }
    bool savePortably(bool breakLinks) override;
    bool saveCopy(const QString& path) override;
    bool deleteAllTags(bool breakLinks) override;
    [[nodiscard]] bool hasUnsavedEdits() const override { return !unsavedEdits_.empty(); }
    [[nodiscard]] QString pathOfUnsavedEdits() const override;
    bool restoreUnsavedEdits(Error* error) override;
    bool restoreUnsavedEditsAt(const QUrl& place, Error* error) override;
    bool takeEditsTo(const QUrl& place, Error* error) override;
    /** The menu's switch. What the user switches off is not remembered any more. */
    void switchPortableTags(bool portable);

    /** The menu's commands: the window as it is now at each start, and nothing remembered any more. The line
       above the form says how that ended. */
    void rememberThisLayout();
    void forgetEverything();

    /** The menu's save command. Saved in place, the document still counts as edited afterwards: only the
       editor's own button clears that. */
    void saveDocument();

    /** Asks what to do with the changes of the open file, and does it. False when the user cancelled, and
       while the question is on the screen already. True otherwise: the file is closed, its changes written,
       kept for restoreUnsavedEdits where they could not be, or dropped. A question that goes away without an
       answer counts as true and leaves the file and its changes as they are. */
    [[nodiscard]] bool handleDirtySave();
    /** The end of the question's sheet. */
    void needsSaveAlertDone(int returnCode);

    [[nodiscard]] bool windowShouldClose() override;
    void windowWillClose() override;
    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() override;
    [[nodiscard]] TerminateReply applicationShouldTerminate() override;

    [[nodiscard]] DocumentWindow* window() const { return window_.get(); }
    [[nodiscard]] VelmoraController* controller() const { return controller_.get(); }
    /** The table over the same list of files; null before showLibrary() was called first. */
    [[nodiscard]] LibraryWindow* library() const { return library_.get(); }
    /** Shows the library table. */
    void showLibrary();
    /** The web lookup below the form; owned by the window. Nothing in the program calls it. */
    [[nodiscard]] TagWebBrowser* webBrowser() const { return webBrowser_; }

private:
    struct UnsavedEdits {
        std::unique_ptr<MediaFile> file;
        QUrl url;
    };

    /** Puts the file at URL into the place of the open one. Empty when it is open, else the
       user's words for what stands in the way; the file that was open is gone then if there is
       one at URL that can't be read. */
    [[nodiscard]] QString openFile(const QUrl& url);
    /** Saves, and tells everybody how that ended. */
    [[nodiscard]] bool saveInPlace(Error* error);
    [[nodiscard]] int askToSave();
    /** Keeps the open file with its edits, which are about to be lost. */
    void keepEdits();
    void makeForms();
    void connectCommands();
    void connectCoverCommands();
    void enableEditCommands();
    void setSymbols();
    void makeRoomForWebPage(bool shown);
    void makeLibrary();
    void restoreLayout();
    void tell(bool succeeded, const QString& text);
    /** Cancels what the library table writes, and asks about its edits. */
    [[nodiscard]] bool libraryMayClose();
    /** Asks about the changes of the open file, and goes back to the library table. False when the file is
       still open. */
    [[nodiscard]] bool closeFileForLibrary();
    /** Whether files at PATHS may be written: asks about changes of the open one, which is open again
       then. */
    [[nodiscard]] bool mayWriteFiles(const QStringList& paths);
    /** The library table has written files, which were at the keys of PATHS and are at their values. */
    void filesWritten(const QHash<QString, QString>& paths);
    void removeFromList(const QStringList& paths);
    /** Opens the file at URL in the place of the open one, whose changes are settled. Where it can't be
       opened, the user is told why. */
    void reopen(const QUrl& url);
    [[nodiscard]] QString openPath() const;

    ApplicationTermination& termination_;
    std::unique_ptr<MediaFile> mediaFile_;
    std::optional<QUrl> openUrl_;            ///< where the open file is
    std::vector<UnsavedEdits> unsavedEdits_; ///< the last ones are restored first
    bool portableTags_ = false;
    QString portableObstacle_;
    PortableSaveRun saveRun_;
    QEventLoop* questionLoop_ = nullptr; ///< runs while the question is on the screen
    std::unique_ptr<Ui::MyDocument> ui_;
    std::unique_ptr<DocumentWindow> window_;
    // The window's parts, which belong to the window.
    MediaList* list_ = nullptr;
    TagForm* form_ = nullptr;
    TagWebBrowser* webBrowser_ = nullptr;
    bool showsPage_ = false;
    StatusLine* status_ = nullptr;
    QList<int> sizesWithPage_; ///< how the window was divided when the page was last shown
    std::unique_ptr<VelmoraController> controller_;
    std::unique_ptr<LibraryWindow> library_;
};

} // namespace velmora
