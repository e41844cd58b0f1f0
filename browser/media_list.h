#pragma once

#include "browser/media_table.h"
#include "platform/error.h"

#include <QWidget>

#include <memory>

namespace Ui {
class MediaList;
}

namespace velmora {

struct SearchSummary;

/** The window's list: the table of media files with the buttons that add to it, and what there is to see of
   the search. It owns its controls; whoever carries the buttons out connects the signals. */
class MediaList : public QWidget {
    Q_OBJECT
public:
    /** DOCUMENT, which the table opens files in, outlives the list. */
    explicit MediaList(MediaDocument& document, QWidget* parent = nullptr);
    ~MediaList() override;

    [[nodiscard]] MediaTable& table() { return *table_; }
    /** Gives the keyboard to the table. */
    void focusTable();

    // What the search says of itself.
    void setSearchAnimated(bool animated);
    void setStopEnabled(bool enabled);
    void setScanStatus(const QString& text);
    /** A search is done. An empty list says where it looked. */
    void setSearched(const SearchSummary& summary);

signals:
    void addFileClicked();
    void addFolderClicked();
    void stopClicked();

    /** The table has closed the document's file, or has opened another one and is about to fill the form. */
    void formToBeCleared();
    /** The table has opened a file; the form is cleared. */
    void formToBeFilled();
    /** The selected file could not be opened. */
    void openFailed(const velmora::Error& error);

private:
    void setUpHint();
    void updateHint();

    std::unique_ptr<Ui::MediaList> ui_;
    std::unique_ptr<MediaTable> table_;
    bool searching_ = false;
};

} // namespace velmora
