// The cover in the panel of the selected files' fields.

#include "edit_panel.h"

#include "imaging/CoverArtView.h"
#include "platform/file_path.h"
#include "platform/image_encode.h"
#include "platform/localisation.h"
#include "platform/open_panel.h"
#include "portable/picture_header.h"
#include "portable/portable_tags.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QScopedValueRollback>

namespace velmora {

namespace {

/** COVER as tags have it: the bytes that it came as, where they are of a format that others show. */
CoverPointer tagCover(const ImageRef& cover) {
    QByteArray bytes = cover.encodedBytes();
    const auto headerOf = [](const QByteArray& picture) {
        return portable::picture_header({reinterpret_cast<const std::uint8_t*>(picture.constData()),
                                         static_cast<std::size_t>(picture.size())});
    };
    if (bytes.isEmpty() || !headerOf(bytes)) {
        bytes = encodedAsFineJpeg(cover.toQImage());
    }
    const auto header = headerOf(bytes);
    return header ? CoverPointer(std::make_shared<const portable::Cover>(
                        portable::Cover{{bytes.begin(), bytes.end()}, header->mime}))
                  : nullptr;
}

QByteArray bytesOf(const portable::Cover& cover) {
    return {reinterpret_cast<const char*>(cover.bytes.data()), static_cast<qsizetype>(cover.bytes.size())};
}

} // namespace

void EditPanel::makeCover(QFormLayout& layout) {
    cover_ = new CoverArtView;
    cover_->setObjectName(QStringLiteral("img_covers"));
    cover_->setToolTip(localised("The cover of the selected files: drop a picture here, or paste one"));
    cover_->setMinimumHeight(120);
    coverText_ = new QLabel;
    coverText_->setTextFormat(Qt::PlainText);
    chooseCover_ = new QPushButton(localised("&Choose…"));
    chooseCover_->setObjectName(QStringLiteral("btn_chooseCover"));
    chooseCover_->setToolTip(localised("Choose a picture as the cover of the selected files"));
    removeCover_ = new QPushButton(localised("Re&move"));
    removeCover_->setObjectName(QStringLiteral("btn_removeCover"));
    removeCover_->setToolTip(localised("Remove the cover from the selected files"));
    auto* const caption = new QLabel(localised("C&over:"));
    caption->setBuddy(cover_);
    auto* const buttons = new QWidget;
    auto* const row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(coverText_, 1);
    row->addWidget(chooseCover_);
    row->addWidget(removeCover_);
    layout.addRow(caption, cover_);
    layout.addRow(buttons);
    connect(cover_, &CoverArtView::imageChanged, this, &EditPanel::coverViewChanged);
    connect(chooseCover_, &QPushButton::clicked, this, &EditPanel::chooseCover);
    connect(removeCover_, &QPushButton::clicked, this, [this] { setCover({}); });
}

void EditPanel::showCover() {
    const LibraryRows& rows = model_.rows();
    std::optional<std::uint64_t> common;
    bool several = false;
    bool any = false;
    for (const int file : files_) {
        const std::uint64_t hash = coverHashOf(rows.at(file), rows.edits(file));
        several = common && *common != hash;
        any = any || hash != 0;
        if (several) {
            any = true;
            break;
        }
        common = hash;
    }
    cover_->setEnabled(!files_.empty());
    chooseCover_->setEnabled(!files_.empty());
    removeCover_->setEnabled(any);
    const std::uint64_t shown = several ? 0 : common.value_or(0);
    showCoverText(several ? localised("several covers") : QString());
    if (shown == shownCover_) {
        return;
    }
    shownCover_ = shown;
    ++coverAsked_;
    cover_->setCover({});
    if (shown != 0) {
        loadCover(files_.front());
    }
}

void EditPanel::showCoverText(const QString& text) {
    coverText_->setText(text);
}

void EditPanel::loadCover(int file) {
    const RowEdits* const edits = model_.rows().edits(file);
    if (edits && edits->cover.sets()) {
        cover_->setCover(ImageRef::fromBytes(bytesOf(**edits->cover.value())));
        return;
    }
    thread_.clear();
    thread_.start([this, asked = coverAsked_, path = pathBytes(model_.rows().at(file).path()).toStdString()] {
        const portable::ReadOutcome read = portable::read_tags(path);
        const QByteArray bytes = read.values.cover ? bytesOf(*read.values.cover) : QByteArray();
        QMetaObject::invokeMethod(
            this, [this, asked, bytes] { takeLoadedCover(asked, bytes); }, Qt::QueuedConnection);
    });
}

void EditPanel::takeLoadedCover(std::uint64_t asked, const QByteArray& bytes) {
    if (asked == coverAsked_) {
        const QScopedValueRollback<bool> showing(showing_, true);
        cover_->setCover(ImageRef::fromBytes(bytes));
    }
}

/** What the user drops, pastes or cuts. */
void EditPanel::coverViewChanged() {
    if (!showing_) {
        setCover(cover_->cover());
    }
}

void EditPanel::setCover(const ImageRef& cover) {
    flush();
    const CoverPointer chosen = cover ? tagCover(cover) : nullptr;
    if (chosen || !cover) {
        takeCover(chosen);
    }
}

void EditPanel::takeCover(const CoverPointer& cover) {
    std::vector<std::pair<int, RowEdits>> all;
    for (const int file : files_) {
        const LibraryRow& row = model_.rows().at(file);
        if (row.media != portable::Media::audio && row.media != portable::Media::video) {
            continue;
        }
        const RowEdits* const before = model_.rows().edits(file);
        RowEdits edits = before ? *before : RowEdits();
        editCover(edits, row, cover);
        all.emplace_back(file, std::move(edits));
    }
    model_.setEdits(all);
}

void EditPanel::chooseCover() {
    const QString folder = files_.empty() ? QString() : model_.rows().at(files_.front()).folder();
    beginOpenPanelSheet({.title = localised("Choose a Cover"), .startFolder = folder}, window(),
                        [this](int code, const QStringList& paths) {
                            const bool one = code == openPanelOk && paths.size() == 1;
                            if (const ImageRef chosen =
                                    one ? ImageRef::fromFile(paths.first()) : ImageRef()) {
                                setCover(chosen);
                            }
                        });
}

} // namespace velmora
