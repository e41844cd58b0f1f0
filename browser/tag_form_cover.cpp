// The cover in the form: shown, pasted, deleted, and brought into the open file.

#include "tag_form.h"

#include "detail/image_file_drops.h"
#include "media_document.h"
#include "ui_tag_form.h"

#include "model/MediaFile.h"
#include "platform/file_path.h"

#include <QScopedValueRollback>

namespace velmora {

void TagForm::setUpCover() {
    connect(ui_->img_coverArt, &CoverArtView::coverArtImageChanged, this, &TagForm::coverArtImageChanged);
    connect(ui_->img_coverArt, &CoverArtView::imageChanged, this, [this] {
        if (document_.portableTags() && !showing_) {
            storeShownCover();
        }
        // Later: a cover that was loaded or dropped is about to be the open file's.
        QMetaObject::invokeMethod(this, &TagForm::shownCoverChanged, Qt::QueuedConnection);
    });
    connect(ui_->img_coverArt, &CoverArtView::shownImageChanged, this,
            [this] { ui_->box_preview->setCover(ui_->img_coverArt->shownImage()); });
    // What nobody sees nobody trims.
    connect(ui_->img_coverArt, &CoverArtView::tooLargeToShow, this,
            [this] { ui_->btn_trimBorder->setEnabled(false); });
    new ImageFileDrops(*this, *ui_->img_coverArt);
}

void TagForm::clearCoverArt() {
    const QScopedValueRollback<bool> showing(showing_, true);
    ui_->img_coverArt->setImage(QImage());
}

void TagForm::showCoverArt(const MediaFile& media) {
    const QScopedValueRollback<bool> showing(showing_, true);
    if (media.coverArt()) {
        ui_->img_coverArt->setCover(media.coverArt());
    } else if (!document_.portableTags()) {
        if (const ImageRef folderImage =
                ImageRef::fromFile(pathFolder(media.filename()) + QStringLiteral("/folder.jpg"))) {
            changeCoverArt(folderImage);
            emit folderImageTaken();
        }
    }
    ui_->btn_trimBorder->setEnabled(static_cast<bool>(ui_->img_coverArt->cover()));
}

QImage TagForm::coverArt() const {
    return ui_->img_coverArt->image();
}

bool TagForm::showsCover() const {
    return static_cast<bool>(ui_->img_coverArt->cover());
}

bool TagForm::showsOtherCover() const {
    const MediaFile* const media = file();
    return media && media->coverArt().get() != ui_->img_coverArt->cover().get();
}

void TagForm::storeShownCover() {
    MediaFile* const media = file();
    const ImageRef cover = ui_->img_coverArt->cover();
    if (!media || media->coverArt().get() == cover.get()) {
        return;
    }
    if (cover) {
        media->setCoverArt(cover);
    } else {
        media->removeCoverArt();
    }
    markChange();
    emit shownCoverChanged();
}

void TagForm::coverArtImageChanged(const ImageRef& cover) {
    MediaFile* const media = file();
    if (!media || !cover) {
        return;
    }
    media->setCoverArt(cover);
    markChange();
}

void TagForm::changeCoverArt(const ImageRef& cover) {
    ui_->img_coverArt->changeImage(cover);
}

void TagForm::pasteAndStoreCover() {
    ui_->img_coverArt->paste();
    storeShownCover();
}

void TagForm::deleteCover() {
    ui_->img_coverArt->setCover({});
    storeShownCover();
}

void TagForm::allowTrimming() {
    ui_->btn_trimBorder->setEnabled(true);
}

} // namespace velmora
