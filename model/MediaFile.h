#pragma once

#include "model/media_type.h"
#include "model/portable_save.h"
#include "model/save_obstacle.h"
#include "platform/error.h"
#include "platform/image.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

namespace velmora {

/** One media file: its path, its media type, and its metadata, edited here and written back on request: in
   place, or with portable tags, which are those that other programs read. Used by one thread at a time. */
class MediaFile {
public:
    /** Opens the file at PATH and reads its tag. Null when the file is not readable. A file without a tag
       that can be read gives an object with empty values. */
    [[nodiscard]] static std::unique_ptr<MediaFile> initWithFile(const QString& path);

    /** Writes the values into the file. Returns false on failure, with ERROR (may be null) filled for an
       alert; the values here stay as they are either way. */
    bool saveMetadata(Error* error);

    /** Opens the file at PATH and reads its portable tags. Null when the file is not readable; OBSTACLE is
       left alone then. Otherwise OBSTACLE becomes empty, or says as one sentence without a full stop why the
       tags can't be read, and then all values are empty. */
    [[nodiscard]] static std::unique_ptr<MediaFile> initWithPortableTags(const QString& path,
                                                                         QString* obstacle);

    /** A save of the values that are other than those which the file was opened with, or that were
       settled, into its portable tags; what became empty is deleted. BREAK_LINKS: also where the file
       has further hard links. */
    [[nodiscard]] PortableSave portableSave(bool breakLinks) const;
    /** A save of the values that are other than those which the file was opened with, or that were settled,
       into the portable tags of a copy of the file, made at TARGET, with its extension, in place of what is
       there; what became empty is deleted. The file itself is only read. TARGET is what it was where that
       fails. */
    [[nodiscard]] PortableSave portableCopy(const QString& target) const;
    /** Takes the values for those that the file was opened with. */
    void settleChanges() { opened_ = metadata_; }
    /** Makes the edits of OTHER since it was opened or last settled here, too; all other values stay. */
    void takeEditsOf(const MediaFile& other);
    /** Whether the file is of a kind that portable tags can be saved in. */
    [[nodiscard]] bool canHavePortableTags() const;
    /** Finds out, on any thread, whether the file's portable tags have a value that is missing or cut off
       here. Empty for kinds of files in which other programs read no tag. */
    [[nodiscard]] std::function<bool()> otherProgramsSeeMore() const;

    /** Whether the tag that is read in place says what the values here say. Reads the
       file and logs nothing. */
    [[nodiscard]] bool isReadBackAsSaved() const;
    /** After a failed save in place: why. Looks at the file. */
    [[nodiscard]] SaveObstacle whyNotSaved() const;

    /** The path of the file that carries the tag: PATH as given, or its side file for DVD folders and disc
       images. */
    [[nodiscard]] QString filename() const { return kind_.taggedFile; }
    /** The path as given. */
    [[nodiscard]] QString path() const { return path_; }
    /** A MediaType, told by the path as given. */
    [[nodiscard]] int mediaType() const { return kind_.type; }

    void setTitle(const QString& title) { metadata_[QStringLiteral("title")] = title; }
    void setArtist(const QString& artist) { metadata_[QStringLiteral("artist")] = artist; }
    void setAlbum(const QString& album) { metadata_[QStringLiteral("album")] = album; }
    void setCast(const QString& cast) { metadata_[QStringLiteral("cast")] = cast; }
    void setDirector(const QString& director) { metadata_[QStringLiteral("director")] = director; }
    void setGenre(const QString& genre) { metadata_[QStringLiteral("genre")] = genre; }
    void setRating(const QString& rating) { metadata_[QStringLiteral("rating")] = rating; }
    void setSynopsis(const QString& synopsis) { metadata_[QStringLiteral("synopsis")] = synopsis; }
    void setDateTime(const QDateTime& dateTime) { metadata_[QStringLiteral("datetime")] = dateTime; }
    void setYear(int year) { metadata_[QStringLiteral("year")] = year; }
    void setCoverArt(const ImageRef& coverArt) {
        metadata_[QStringLiteral("coverart")] = QVariant::fromValue(coverArt);
    }
    void removeCoverArt() { metadata_.remove(QStringLiteral("coverart")); }
    /** Joins names with ", " and stores them as the cast. Nothing in the program calls it. */
    void setCastList(const QStringList& names);

    [[nodiscard]] QString title() const { return text(QStringLiteral("title")); }
    [[nodiscard]] QString artist() const { return text(QStringLiteral("artist")); }
    [[nodiscard]] QString album() const { return text(QStringLiteral("album")); }
    [[nodiscard]] QString cast() const { return text(QStringLiteral("cast")); }
    [[nodiscard]] QString director() const { return text(QStringLiteral("director")); }
    [[nodiscard]] QString genre() const { return text(QStringLiteral("genre")); }
    [[nodiscard]] QString rating() const { return text(QStringLiteral("rating")); }
    [[nodiscard]] QString synopsis() const { return text(QStringLiteral("synopsis")); }
    /** The moment of loading, not a date from the file. */
    [[nodiscard]] QDateTime dateTime() const {
        return metadata_.value(QStringLiteral("datetime")).toDateTime();
    }
    /** 0 when there is none. */
    [[nodiscard]] int year() const { return metadata_.value(QStringLiteral("year")).toInt(); }
    /** No image when the file has none. */
    [[nodiscard]] ImageRef coverArt() const {
        return metadata_.value(QStringLiteral("coverart")).value<ImageRef>();
    }

    /** The metadata dictionary: strings under "title", "artist", "album", "cast", "director", "synopsis",
       "rating" and "genre", an integer under "year", a date under "datetime" and, only when there is one, an
       ImageRef under "coverart". */
    [[nodiscard]] const QVariantMap& metadata() const { return metadata_; }

private:
    MediaFile() = default;
    void fillEmptyValues();
    [[nodiscard]] QString text(const QString& key) const { return metadata_.value(key).toString(); }

    QString path_; ///< as given
    MediaKind kind_;
    QVariantMap metadata_;
    QVariantMap opened_;                   ///< the metadata as it was opened or last settled
    std::optional<FailedSave> failedSave_; ///< the last save in place, if it failed
};

} // namespace velmora
