#pragma once

#include "name_pattern.h"

#include "library/library_model.h"
#include "library/library_view.h"
#include "library/rename_files.h"

#include <QMenu>
#include <QPointer>

namespace velmora {

/** The commands "Tags from Names…" and "Names from Tags…" of the library table. Both are about the
   selected files, or all that are shown where none is, and both make edits, which the table applies with the
   others. */
class NamesCommands : public QObject {
    Q_OBJECT
public:
    /** MODEL and VIEW outlive it; WINDOW is what the dialogs belong to. */
    NamesCommands(LibraryModel& model, LibraryView& view, QWidget* window);

    void addTo(QMenu& menu);

private:
    void ask(NamePattern::Use use);
    void take(NamePattern::Use use, const class NamesDialog& dialog);
    [[nodiscard]] std::vector<int> files() const;
    [[nodiscard]] std::vector<struct NamesSource> sources(const std::vector<int>& files) const;
    [[nodiscard]] std::vector<FileRename> otherNames(const std::vector<int>& files) const;

    LibraryModel& model_;
    LibraryView& view_;
    QWidget* window_;
    QStringList readHistory_;
    QStringList writeHistory_;
};

} // namespace velmora
