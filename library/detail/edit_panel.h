#pragma once

#include "library/library_model.h"
#include "platform/image.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>

#include <map>
#include <unordered_map>

class QFormLayout;

namespace velmora {

class CoverArtView;

/** The fields of the selected files: what these have in common, and that there are several values otherwise.
   What is typed into a field becomes an edit of all of them; what is not touched is left alone. */
class EditPanel : public QWidget {
    Q_OBJECT
public:
    /** MODEL outlives the panel. */
    explicit EditPanel(LibraryModel& model, QWidget* parent = nullptr);
    ~EditPanel() override;

    /** Shows the files with these numbers. What was typed for others is theirs. */
    void showFiles(const std::vector<int>& files);
    /** Shows them again: they have changed. A field that is being typed into stays. */
    void refresh();
    /** What was typed so far can't be undone in the fields any more: it has been applied. */
    void forgetTyping();
    /** What was typed becomes edits now. */
    void flush();

    /** COVER is to be that of all files; none removes it. */
    void setCover(const ImageRef& cover);

private:
    void makeFields(QFormLayout& layout);
    void makeCover(QFormLayout& layout);
    void typedInto(LibraryColumn column);
    void edit(LibraryColumn column, const QString& text);
    void takeBack(LibraryColumn column);
    [[nodiscard]] bool isAllUndone(LibraryColumn column) const;
    void show(LibraryColumn column);
    void showText(LibraryColumn column, const QString& text, bool several);
    [[nodiscard]] QWidget* fieldOf(LibraryColumn column) const { return fields_.at(column); }
    [[nodiscard]] QString typedText(LibraryColumn column) const;
    void showCover();
    void loadCover(int file);
    void takeLoadedCover(std::uint64_t asked, const QByteArray& bytes);
    void showCoverText(const QString& text);
    void coverViewChanged();
    void chooseCover();
    void takeCover(const CoverPointer& cover);

    LibraryModel& model_;
    std::vector<int> files_;
    std::map<LibraryColumn, QWidget*> fields_;
    std::optional<LibraryColumn> typed_; ///< the field that was typed into, and whose text is no edit yet
    QTimer typing_;
    std::optional<LibraryColumn> touched_;        ///< the field that was typed into last, since it was filled
    std::unordered_map<int, RowEdits> untouched_; ///< the edits that files had before that
    bool refills_ = false;                        ///< fields are filled anew even with the same text
    bool showing_ = false;                        ///< the program changes the fields, and not the user
    CoverArtView* cover_ = nullptr;
    QLabel* coverText_ = nullptr;
    QPushButton* chooseCover_ = nullptr;
    QPushButton* removeCover_ = nullptr;
    std::uint64_t coverAsked_ = 0;
    std::uint64_t shownCover_ = 0; ///< the hash of the cover that is shown or being loaded
    QThreadPool thread_;
};

} // namespace velmora
