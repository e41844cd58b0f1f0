#include "MyDocument.h"

#include "ui_MyDocument.h"

#include "browser/VelmoraController.h"
#include "library/library_window.h"
#include "platform/alert.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "platform/modal_loop.h"
#include "weblookup/TagWebBrowser.h"

namespace velmora {

namespace {

/** Fills ERROR, if there is one to fill, and returns false. */
bool failToOpen(const QUrl& url, const QString& suggestion, Error* error) {
    if (error) {
        const QString path = url.isLocalFile() ? pathFromFileUrl(url) : url.path();
        *error = {
            NSMachErrorDomain,
            0,
            {{NSURLErrorKey, url},
             {NSLocalizedDescriptionKey, localised("Unable to open file \"%@\".", lastPathComponent(path))},
             {NSLocalizedRecoverySuggestionErrorKey, suggestion}}};
    }
    return false;
}

} // namespace

MyDocument::MyDocument(ApplicationTermination& termination, QObject* parent)
    : MediaDocument(parent), termination_(termination) {}

MyDocument::~MyDocument() {
    termination_.setDelegate(nullptr);
    if (window_) {
        window_->setDelegate(nullptr);
    }
}

QByteArray MyDocument::dataRepresentationOfType(const QString& /*type*/) {
    return {};
}

bool MyDocument::loadDataRepresentation(const QByteArray& /*data*/, const QString& /*type*/) {
    return true;
}

QString MyDocument::displayName() const {
    return localised("KORVANE Velmora");
}

bool MyDocument::isDocumentEdited() const {
    return mediaFile_ && Document::isDocumentEdited();
}

bool MyDocument::readFromURL(const std::optional<QUrl>& url, const QString& /*type*/, Error* error) {
    appLog(QStringLiteral("in readFromURL\n"));
    if (mediaFile_ && isDocumentEdited() && !handleDirtySave()) {
        return false;
    }
    if (!url) {
        mediaFile_.reset();
        return true;
    }
    const QString obstacle = openFile(*url);
    return obstacle.isEmpty() || failToOpen(*url, obstacle, error);
}

QString MyDocument::openFile(const QUrl& url) {
    if (!url.isLocalFile()) {
        return localised("Velmora can only open local files.");
    }
    const QString path = pathFromFileUrl(url);
    if (!fileExists(path)) {
        return localised("The file does not exist.");
    }
    portableObstacle_.clear();
    mediaFile_ = portableTags_ ? MediaFile::initWithPortableTags(path, &portableObstacle_)
                               : MediaFile::initWithFile(path);
    openUrl_ = url;
    return mediaFile_ ? QString()
                      : localised("Please ensure the file is readable and is a valid media file.");
}

void MyDocument::reopen(const QUrl& url) {
    updateChangeCount(ChangeType::Cleared);
    const QString obstacle = openFile(url);
    emit openedAgain();
    if (!obstacle.isEmpty()) {
        Error error;
        static_cast<void>(failToOpen(url, obstacle, &error));
        presentErrorSheet(error, windowForSheet());
    }
}

bool MyDocument::saveMediaFile(Error* error) {
    if (!mediaFile_) {
        return false;
    }
    if (portableTags_) {
        return savePortably(false);
    }
    const bool saved = saveInPlace(error);
    emit saveEnded(
        {saved, std::nullopt, mediaFile_->filename(), saved ? SaveObstacle() : mediaFile_->whyNotSaved()});
    return saved;
}

bool MyDocument::saveInPlace(Error* error) {
    if (mediaFile_->saveMetadata(error)) {
        return true;
    }
    const QString suggestion =
        error ? error->userInfo.value(NSLocalizedRecoverySuggestionErrorKey).toString() : QString();
    appLog(QStringLiteral("error saving file: ") + suggestion + QLatin1Char('\n'));
    return false;
}

void MyDocument::saveDocument() {
    saveMediaFile(nullptr);
}

/** Asks on a sheet whether to save the changes, and waits for the answer: the code of the button, or another
   one for a question that went away. */
int MyDocument::askToSave() {
    Alert alert;
    alert.setMessageText(localised("Do you want to save the changes you made?"));
    alert.setInformativeText(localised("Your changes to \"%@\" will be lost if you don't save them.",
                                       mediaFile_ ? mediaFile_->filename() : QString()));
    alert.addButton(localised("Save"), Qt::Key_Return);
    alert.addButton(localised("Cancel"), Qt::Key_Escape);
    alert.addButton(localised("Don't Save"), Qt::CTRL | Qt::Key_D);

    QEventLoop loop;
    questionLoop_ = &loop;
    alert.beginSheetModalForWindow(windowForSheet(),
                                   [this](int returnCode) { needsSaveAlertDone(returnCode); });
    int returnCode = 0;
    {
        const ModalLoop modalLoop;
        returnCode = loop.exec();
    }
    questionLoop_ = nullptr;
    return returnCode;
}

bool MyDocument::handleDirtySave() {
    if (questionLoop_) {
        return false; // already asked, and not answered yet
    }
    switch (askToSave()) {
    case Alert::secondButtonReturn:
        return false;
    case Alert::firstButtonReturn:
        if (!saveMediaFile(nullptr)) {
            if (portableTags_) {
                return false; // nothing of what the user did is lost, and the notice says why
            }
            keepEdits();
        }
        [[fallthrough]];
    case Alert::thirdButtonReturn:
        mediaFile_.reset();
        updateChangeCount(ChangeType::Cleared);
        return true;
    default:
        return true;
    }
}

void MyDocument::needsSaveAlertDone(int returnCode) {
    if (questionLoop_) {
        questionLoop_->exit(returnCode);
    }
}

bool MyDocument::windowShouldClose() {
    if (saveRun_.isRunning()) {
        saveRun_.cancel();
        return false;
    }
    if (!libraryMayClose()) {
        return false;
    }
    return readFromURL(std::nullopt, QString(), nullptr);
}

void MyDocument::windowWillClose() {
    termination_.terminate();
}

bool MyDocument::applicationShouldTerminateAfterLastWindowClosed() {
    appLog(QStringLiteral("in astalwc\n"));
    return true;
}

ApplicationDelegate::TerminateReply MyDocument::applicationShouldTerminate() {
    appLog(QStringLiteral("in ast\n"));
    if (saveRun_.isRunning()) {
        saveRun_.cancel();
        return TerminateReply::Cancel;
    }
    if (!libraryMayClose()) {
        return TerminateReply::Cancel;
    }
    const bool now = !mediaFile_ || !isDocumentEdited() || handleDirtySave();
    return now ? TerminateReply::Now : TerminateReply::Cancel;
}

} // namespace velmora
