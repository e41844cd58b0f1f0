#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class QAction;
class QLineEdit;

namespace Ui {
class TagForm;
}

namespace velmora {

class ImageRef;
class MediaDocument;
class MediaFile;
class MoviePreview;
class NoticeBar;
struct FormFillInfo;

/** The tag editor form: what it shows for the open file, and which control edits which of the file's values.
   Each edit goes into the MediaFile at once and marks the document changed; nothing here writes the file.
   What the program itself puts into a control is never taken for an edit.

   The form owns its controls, the preview among them; whoever carries the buttons out
   connects the signals. */
class TagForm : public QWidget {
    Q_OBJECT
public:
    /** DOCUMENT outlives the form. */
    explicit TagForm(MediaDocument& document, QWidget* parent = nullptr);
    ~TagForm() override;

    [[nodiscard]] MoviePreview& preview();
    /** The line above the form. */
    [[nodiscard]] NoticeBar& notice();

    // Emptying the form: the fields, the cover art, the buttons. The captions, whether the rating can be
    // chosen, and the date stay as they are.
    void clearFields();
    void clearCoverArt();
    void disableButtons();

    /** Shows the open file in a form that was cleared before. A file without cover art takes the image
       "folder.jpg" of its folder, which counts as a change; with portable tags it shows what it has. */
    void showFile(const MediaFile& media);
    /** Says above the form which file it edits, and in empty fields where nothing that is
       typed would be stored. */
    void tellOpenFile();
    /** Lets the open file's tag be removed and its cover art be loaded. */
    void enableFileButtons();
    /** Shows the result of a web lookup. Only the rating and the cover art reach the open file; the other
       fields do when the user next types in them. Null changes nothing. */
    void fillFields(const FormFillInfo* info);

    /** Brings what the form shows and the open file does not have yet into it, for saves that write
       all of that: the fields that a web lookup filled, and nobody has typed in since, and a cover
       that was pasted or cut. */
    void storeShownValues();
    /** The part of it that is about the fields. */
    void storeFilledFields();
    /** The part of it that is about the cover. */
    void storeShownCover();
    /** Whether there are fields that a web lookup filled and whose text is not in the open file. */
    [[nodiscard]] bool hasFilledFields() const { return !filled_.isEmpty(); }
    /** Whether the cover that the form shows, or that it shows none, is not the open file's. */
    [[nodiscard]] bool showsOtherCover() const;

    /** CONTROL, a text field or the genre box, was edited by the user. */
    void controlTextDidChange(const QObject* control);
    /** The synopsis was edited. */
    void textDidChange(const QObject* textView);
    /** The rating with this title was chosen, maybe the one that was chosen already. */
    void ratingMenuItemChanged(const QString& title);
    /** The open file's cover art was changed to COVER; none changes nothing. */
    void coverArtImageChanged(const ImageRef& cover);

    /** Whether there is cover art in the form. */
    [[nodiscard]] bool showsCover() const;
    /** Shows the clipboard's image, if it has one, and makes it the open file's cover. */
    void pasteAndStoreCover();
    /** Takes the cover out of the form and from the open file's values. */
    void deleteCover();
    /** Presses the save button, if it can be pressed. */
    void clickSave();
    /** The cover art shown; null when there is none. */
    [[nodiscard]] QImage coverArt() const;
    /** Shows COVER as the open file's new cover art, which counts as a change. */
    void changeCoverArt(const ImageRef& cover);
    void allowTrimming();

    /** Counts a change of the open file and lets it be saved or reverted. */
    void markChange();
    /** After a save or removal: nothing to save or revert. */
    void disableSaveAndRevert();

    /** Presses the revert button, if it can be pressed. */
    void clickRevert();

    /** The genre box's suggestions, which the program itself gives the box as a whole: nothing in it
       calls these two. */
    [[nodiscard]] int numberOfItemsInComboBox() const;
    /** INDEX is below numberOfItemsInComboBox(). */
    [[nodiscard]] QString comboBoxObjectValueForItemAtIndex(int index) const;

signals:
    void saveClicked();
    void revertClicked();
    void removeClicked();
    void loadCoverArtClicked();
    void trimBorderClicked();
    /** The open file has taken the image "folder.jpg" of its folder as its cover, which counts as a
       change. */
    void folderImageTaken();
    /** hasFilledFields may have changed. */
    void filledFieldsChanged();
    /** showsOtherCover may have changed. */
    void shownCoverChanged();
    /** The text to look the open file up with has changed. */
    void searchTextChanged(const QString& text);

private:
    void tellWhatIsStored();
    void setUpRating();
    void setUpGenre();
    void setUpFields();
    void setUpCover();
    void connectButtons();
    void setSymbols();
    void markYear();
    void showCaptions(const MediaFile& file);
    void showCoverArt(const MediaFile& file);
    void fillLine(QLineEdit& field, const QString& text);
    void fillRating(const QString& title);
    void setGenreText(const QString& text);
    void setSynopsisText(const QString& text);
    [[nodiscard]] MediaFile* file() const;

    std::unique_ptr<Ui::TagForm> ui_;
    MediaDocument& document_;
    QStringList genres_;
    bool showing_ = false;        ///< the cover is changed by the program, and not by the user
    QAction* yearMark_ = nullptr; ///< there while the year is no number
    QList<QWidget*> filled_; ///< controls that a web lookup filled, and whose text is not in the open file
};

/** The elements of LIST with SEPARATOR between them; empty for an empty list. */
[[nodiscard]] QString nsarray_to_nsstring(const QStringList& list, const QString& separator);

} // namespace velmora
