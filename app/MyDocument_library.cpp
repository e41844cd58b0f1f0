// The document's list of files in the library table.

#include "MyDocument.h"

#include "browser/VelmoraController.h"
#include "browser/media_table.h"
#include "library/library_window.h"

namespace velmora {

void MyDocument::showLibrary() {
    if (!library_) {
        makeLibrary();
    }
    library_->present();
}

void MyDocument::makeLibrary() {
    library_ = std::make_unique<LibraryWindow>();
    LibraryModel& files = library_->model();
    const MediaRows& listed = controller_->table().mediaFiles();
    for (std::size_t i = 0; i < listed.count(); ++i) {
        files.addFile(listed.at(i)->fullpath, listed.at(i)->rawfilesize);
    }
    connect(&controller_->table(), &MediaTable::fileAdded, &files,
            [&files](const ColdataPointer& row) { files.addFile(row->fullpath, row->rawfilesize); });
}

} // namespace velmora
