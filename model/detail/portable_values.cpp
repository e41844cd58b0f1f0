#include "portable_values.h"

#include "metadata_keys.h"

#include "platform/image.h"
#include "platform/image_encode.h"
#include "platform/picture_format.h"

#include <span>

namespace velmora {

namespace {

using portable::Cover;
using portable::Edit;
using portable::Field;

/** A text of the dictionary and the field of a tag that it is. */
struct FieldKey {
    Field field;
    const char* key;
};

constexpr FieldKey filmKeys[] = {
    {Field::title, "title"},       {Field::artist, "cast"}, {Field::director, "director"},
    {Field::synopsis, "synopsis"}, {Field::genre, "genre"}, {Field::rating, "rating"},
};

constexpr FieldKey songKeys[] = {
    {Field::title, "title"},       {Field::artist, "artist"}, {Field::album, "album"},
    {Field::synopsis, "synopsis"}, {Field::genre, "genre"},
};

std::span<const FieldKey> keysOf(int type) {
    return type == videoMedia ? std::span<const FieldKey>(filmKeys) : songKeys;
}

QString textOf(const QVariantMap& metadata, const FieldKey& key) {
    return metadata.value(QLatin1String(key.key)).toString();
}

ImageRef coverOf(const QVariantMap& metadata) {
    return metadata.value(coverKey).value<ImageRef>();
}

std::string mimeOf(const QByteArray& bytes) {
    switch (pictureFormat(bytes).value_or(PictureFormat::Jpeg)) {
    case PictureFormat::Jpeg:
        break;
    case PictureFormat::Png:
        return "image/png";
    case PictureFormat::Gif:
        return "image/gif";
    case PictureFormat::Bmp:
        return "image/bmp";
    case PictureFormat::WebP:
        return "image/webp";
    case PictureFormat::Tiff:
        return "image/tiff";
    }
    return "image/jpeg";
}

Edit<Cover> settingCover(const QByteArray& bytes) {
    return Edit<Cover>::set({{bytes.begin(), bytes.end()}, mimeOf(bytes)});
}

bool isMore(const QString& text, const QString& shown) {
    return text.size() > shown.size() && text.startsWith(shown);
}

} // namespace

MediaType mediaTypeOf(const portable::MediaKind& kind) {
    switch (kind.media) {
    case portable::Media::audio:
        return audioMedia;
    case portable::Media::video:
        return videoMedia;
    case portable::Media::image:
        return imageMedia;
    case portable::Media::other:
        break;
    }
    return otherMedia;
}

void fillMetadata(QVariantMap& metadata, const portable::TagValues& values, int type) {
    for (const char* key : {"title", "artist", "album", "cast", "director", "synopsis", "genre", "rating"}) {
        metadata[QLatin1String(key)] = QLatin1String("");
    }
    for (const FieldKey& key : keysOf(type)) {
        metadata[QLatin1String(key.key)] = QString::fromStdString(values.text(key.field).value_or(""));
    }
    metadata[yearKey] = values.year.value_or(0);
    metadata.remove(coverKey);
    if (values.cover) {
        const auto& bytes = values.cover->bytes;
        const ImageRef cover = ImageRef::fromBytes(
            QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
        if (cover) {
            metadata[coverKey] = QVariant::fromValue(cover);
        }
    }
}

portable::TagEdits editsBetween(const QVariantMap& opened, const QVariantMap& metadata, int type) {
    portable::TagEdits edits;
    for (const FieldKey& key : keysOf(type)) {
        const QString text = textOf(metadata, key);
        if (text != textOf(opened, key)) {
            edits.text(key.field) =
                text.isEmpty() ? Edit<std::string>::remove() : Edit<std::string>::set(text.toStdString());
        }
    }
    const int year = metadata.value(yearKey).toInt();
    if (year != opened.value(yearKey).toInt()) {
        edits.year = year == 0 ? Edit<int>::remove() : Edit<int>::set(year);
    }
    return edits;
}

std::function<portable::Edit<portable::Cover>()> coverEdit(const QVariantMap& opened,
                                                           const QVariantMap& metadata) {
    const ImageRef cover = coverOf(metadata);
    if (cover.get() == coverOf(opened).get()) {
        return {};
    }
    if (!cover) {
        return [] { return Edit<Cover>::remove(); };
    }
    const QByteArray bytes = cover.encodedBytes();
    if (!bytes.isEmpty()) {
        return [bytes] { return settingCover(bytes); };
    }
    return [pixels = cover.toQImage()] { return settingCover(encodedAsFineJpeg(pixels)); };
}

bool saysMore(const portable::TagValues& values, const QVariantMap& metadata, int type) {
    for (const FieldKey& key : keysOf(type)) {
        if (isMore(QString::fromStdString(values.text(key.field).value_or("")), textOf(metadata, key))) {
            return true;
        }
    }
    return (values.year && metadata.value(yearKey).toInt() == 0) || (values.cover && !coverOf(metadata));
}

} // namespace velmora
