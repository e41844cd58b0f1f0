#pragma once

#include "media_search.h"
#include "media_table.h"
#include "movie_preview.h"
#include "tag_form.h"

#include "imaging/CoverArtView.h"
#include "weblookup/form_fill_receiver.h"

#include <QObject>

class QLabel;
class QPushButton;
class QTableView;

namespace velmora {

class BusyIndicator;
class MediaDocument;
class MovieView;
class TagWebBrowser;

/** The window's controls that the controller works with, made by the window layout. All of them must be set
   and outlive the controller. */
struct VelmoraOutlets : TagFormOutlets {
    QPushButton* btn_captureFrame = nullptr;
    QPushButton* btn_addFile = nullptr;
    QPushButton* btn_addFolder = nullptr;
    QPushButton* btn_stop = nullptr;
    BusyIndicator* progress_mediaSearch = nullptr;
    QLabel* lbl_scanStatus = nullptr;
    QTableView* tbl_mediaFiles = nullptr;
    MovieView* view_preview = nullptr;
    QLabel* lbl_previewFailed = nullptr;
    TagWebBrowser* twb_browser = nullptr;
};

/** The browser window's controller: it joins the media search, the media table, the tag editor form, the
   preview and the web lookup to the window's controls, and carries out the buttons' actions. */
class VelmoraController : public QObject, public FormFillReceiver, public CoverArtReceiver {
    Q_OBJECT
public:
    /** DOCUMENT outlives the controller. */
    VelmoraController(const VelmoraOutlets& outlets, MediaDocument& document, QObject* parent = nullptr);

    /** The window is loaded: queues the home folder's Movies, Music and Pictures and starts the search. */
    void awakeFromNib();

    /** Writes the open file's values into the file. A failure is logged, and everything stays as it is. */
    void saveTag();
    /** Opens the selected file again from disk, dropping all edits; nothing is reopened when no row is
     * selected. */
    void revertToSaved();
    /** Takes the edits for settled: nothing asks to save them any more. The file, the form and the values
     * stay. */
    void removeTag();

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

    void clearUI();
    void fillUI();

    void fillFields(const FormFillInfo* info) override { form_.fillFields(info); }
    void coverArtImageChanged(QObject* sender) override { form_.coverArtImageChanged(sender); }

    [[nodiscard]] TagForm& form() { return form_; }
    [[nodiscard]] MediaTable& table() { return table_; }
    [[nodiscard]] MediaSearch& search() { return search_; }

private:
    void connectSearch();
    void connectButtons();

    VelmoraOutlets outlets_;
    MediaDocument& document_;
    MediaSearch search_;
    MediaTable table_;
    TagForm form_;
    MoviePreview preview_;
};

} // namespace velmora
