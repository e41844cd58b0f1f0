#include "cover_thumbnails.h"

#include "platform/file_path.h"
#include "platform/image_decode.h"
#include "portable/portable_tags.h"

namespace velmora {

namespace {

constexpr int kept = 1000;
/** More than any screen shows: what was scrolled past is not waited for. */
constexpr int mostAsked = 200;

QImage decoded(const portable::Cover& cover, int side, const std::atomic<bool>& ending) {
    const QByteArray bytes(reinterpret_cast<const char*>(cover.bytes.data()),
                           static_cast<qsizetype>(cover.bytes.size()));
    const auto header = readPictureHeader(bytes);
    return header ? decodePictureToFit(bytes, *header, QSize(side, side), ending) : QImage();
}

} // namespace

CoverThumbnails::CoverThumbnails(LibraryModel& model, int side, QObject* parent)
    : QObject(parent), model_(model), side_(side), thumbnails_(kept) {
    thread_.setMaxThreadCount(1);
}

CoverThumbnails::~CoverThumbnails() {
    ending_ = true;
    thread_.clear();
    thread_.waitForDone();
}

QVariant CoverThumbnails::picture(int file) {
    const std::uint64_t hash = coverHashOf(model_.rows().at(file), model_.rows().edits(file));
    if (hash == 0) {
        return {};
    }
    const Thumbnail* const known = thumbnails_.object(file);
    if (!known || known->hash != hash) {
        ask(file, hash);
        return {};
    }
    return known->pixels.isNull() ? QVariant() : QVariant(known->pixels);
}

void CoverThumbnails::ask(int file, std::uint64_t hash) {
    if (asked_.size() >= mostAsked) {
        thread_.clear();
        asked_.clear();
    }
    if (asked_.contains(file)) {
        return;
    }
    asked_.insert(file);
    const RowEdits* const edits = model_.rows().edits(file);
    const CoverPointer edited = edits ? edits->cover.value().value_or(nullptr) : nullptr;
    const std::string path = pathBytes(model_.rows().at(file).path()).toStdString();
    thread_.start(
        [this, file, hash, edited, path] {
            const auto read =
                edited ? std::optional<portable::Cover>() : portable::read_tags(path).values.cover;
            const QImage pixels = edited ? decoded(*edited, side_, ending_)
                                  : read ? decoded(*read, side_, ending_)
                                         : QImage();
            QMetaObject::invokeMethod(
                this, [this, file, hash, pixels] { take(file, hash, pixels); }, Qt::QueuedConnection);
        },
        ++order_);
}

void CoverThumbnails::take(int file, std::uint64_t hash, const QImage& pixels) {
    asked_.remove(file);
    thumbnails_.insert(file, new Thumbnail{hash, QPixmap::fromImage(pixels)});
    model_.thumbnailChanged(file);
}

} // namespace velmora
