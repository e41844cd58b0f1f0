#pragma once

#include "pick_lists.h"

#include <QObject>

#include <functional>

class QComboBox;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace velmora {

class CoverArtView;
class MediaDocument;
class MediaFile;
struct FormFillInfo;

/** The form's controls, made by the window layout. All of them must be set and outlive the form. */
struct TagFormOutlets {
    QLineEdit* entry_title = nullptr;
    QLineEdit* entry_artist = nullptr;
    QLineEdit* entry_album = nullptr;
    QLineEdit* entry_year = nullptr;
    QLabel* lbl_artist = nullptr;
    QLabel* lbl_album = nullptr;
    QComboBox* combo_genre = nullptr;
    QComboBox* combo_rating = nullptr;
    QDateTimeEdit* picker_dateTime = nullptr;
    QPlainTextEdit* entry_desc = nullptr;
    CoverArtView* img_coverArt = nullptr;
    QPushButton* btn_saveTag = nullptr;
    QPushButton* btn_revertTag = nullptr;
    QPushButton* btn_removeTag = nullptr;
    QPushButton* btn_loadCoverArt = nullptr;
    QPushButton* btn_trimBorder = nullptr;
};

/** The rules of the tag editor form: what it shows for the open file, and which control edits which of the
   file's values. Each edit goes into the MediaFile at once and marks the document changed; nothing here
   writes the file. What the program itself puts into a control is never taken for an edit. */
class TagForm : public QObject, public ComboBoxDataSource {
    Q_OBJECT
public:
    /** DOCUMENT outlives the form. */
    TagForm(const TagFormOutlets& outlets, MediaDocument& document, QObject* parent = nullptr);

    // Emptying the form: the fields, the cover art, the buttons. The captions, whether the rating can be
    // chosen, and the date stay as they are.
    void clearFields();
    void clearCoverArt();
    void disableButtons();

    /** Shows the open file in a form that was cleared before. A file without cover art takes the image
       "folder.jpg" of its folder, which counts as a change. */
    void show(const MediaFile& media);
    /** Lets the open file's tag be removed and its cover art be loaded. */
    void enableFileButtons();
    /** Shows the result of a web lookup. Only the rating and the cover art reach the open file; the other
       fields do when the person next types in them. Null changes nothing. */
    void fillFields(const FormFillInfo* info);

    /** CONTROL, a text field or the genre box, was edited by the person. */
    void controlTextDidChange(const QObject* control);
    /** The synopsis was edited. */
    void textDidChange(const QObject* textView);
    /** The rating with this title was chosen, maybe the one that was chosen already. */
    void ratingMenuItemChanged(const QString& title);
    /** The cover art view shows another image than before. */
    void coverArtImageChanged(const QObject* sender);

    /** Counts a change of the open file and lets it be saved or reverted. */
    void markChange();
    /** After a save or removal: nothing to save or revert. */
    void disableSaveAndRevert();

    [[nodiscard]] int numberOfItemsInComboBox() const override;
    [[nodiscard]] QString comboBoxObjectValueForItemAtIndex(int index) const override;

signals:
    /** The text to look the open file up with has changed. */
    void searchTextChanged(const QString& text);

private:
    void setUpControls();
    void showCaptions(const MediaFile& file);
    void showCoverArt(const MediaFile& file);
    void setGenreText(const QString& text);
    void setSynopsisText(const QString& text);
    [[nodiscard]] MediaFile* file() const;

    TagFormOutlets outlets_;
    MediaDocument& document_;
    QStringList genres_;
};

/** The elements of LIST with SEPARATOR between them; empty for an empty list. */
[[nodiscard]] QString nsarray_to_nsstring(const QStringList& list, const QString& separator);

} // namespace velmora
