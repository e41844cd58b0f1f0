#pragma once

#include "filter_text.h"

#include "portable/media_kind.h"
#include "portable/tag_values.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace velmora {

/** The texts of a file's tags in one block of memory, which copies share. */
class PackedTexts {
public:
    PackedTexts() = default;
    explicit PackedTexts(const portable::TagValues& values);

    /** The value of FIELD, one of the text fields, in UTF-8; empty where there is none. Good
       as long as this object. */
    [[nodiscard]] std::string_view text(portable::Field field) const;
    /** The texts one behind the other, each with a zero behind it. */
    [[nodiscard]] const QByteArray& block() const { return block_; }

private:
    QByteArray block_ = QByteArray(portable::text_field_count, '\0');
};

/** What is known of a file's tags. */
enum class ReadState : std::uint8_t { waiting, read, failed };

/** A file of the library table as it was last read. Rows of 100,000 files are kept: a row's texts are one
   block of memory in UTF-8, and its folder's path is shared with other rows. */
class LibraryRow {
public:
    LibraryRow() = default;
    /** A file that was not read yet. */
    LibraryRow(const QString& path, std::uint64_t size);

    portable::Media media = portable::Media::other;
    ReadState state = ReadState::waiting;
    bool removed = false;        ///< no longer listed; the place is not given to another file
    std::int16_t year = 0;       ///< 0: none
    MissingBits missing = 0;     ///< known with the filter's text
    std::uint32_t ticket = 0;    ///< of the last request to read it
    std::uint64_t coverHash = 0; ///< tells different covers apart; 0: no cover
    std::uint64_t size = 0;      ///< bytes
    std::int64_t created = 0;    ///< seconds since 1970-01-01 UTC

    [[nodiscard]] QString name() const;
    [[nodiscard]] QString folder() const;
    [[nodiscard]] QString path() const;
    /** Whether the file is at PATH, in the file system's bytes. */
    [[nodiscard]] bool isAt(const QByteArray& path) const;
    /** The value of FIELD, one of the text fields, in UTF-8; empty where there is none. Good
       until the row changes. */
    [[nodiscard]] std::string_view text(portable::Field field) const;
    /** Which tags there are; or, where these can't be read, why. */
    [[nodiscard]] QString tags() const;
    /** What a filter looks at; empty until it was set. Good until the row changes. */
    [[nodiscard]] FilterView filter() const;

    /** The file is at PATH now. The filter's text is empty afterwards. */
    void setPath(const QString& path);
    void setTexts(const PackedTexts& texts, const QString& tags, const FilterText& filter);
    void setFilter(const FilterText& filter);
    /** Takes the folder's path out of FOLDERS, or puts it there. */
    void shareFolder(QSet<QByteArray>& folders);

private:
    void pack(std::string_view filter, std::string_view texts, std::string_view name);
    /** What the block holds behind the filter's text: the tags' texts, which tags there are, each with a zero
       behind it, and the name. */
    [[nodiscard]] std::string_view packed() const;
    [[nodiscard]] std::string_view nameBytes() const;

    QByteArray folder_; ///< its path with the slash behind it
    QByteArray block_;  ///< the length of the filter's text, that text, and the others
};

/** A number that is the same for the same bytes, and hardly ever for others; never 0. */
[[nodiscard]] std::uint64_t coverHash(const portable::Cover& cover);

/** A cover that several rows share, or none. Its hash is taken once, however many rows and however large the
   cover. */
class CoverPointer {
public:
    CoverPointer() = default;
    CoverPointer(std::nullptr_t) {}
    template <typename SharedCover>
    CoverPointer(std::shared_ptr<SharedCover> cover)
        : cover_(std::move(cover)), hash_(cover_ ? coverHash(*cover_) : 0) {}

    [[nodiscard]] explicit operator bool() const { return cover_ != nullptr; }
    [[nodiscard]] const portable::Cover& operator*() const { return *cover_; }
    [[nodiscard]] const portable::Cover* operator->() const { return cover_.get(); }
    /** 0 for none. */
    [[nodiscard]] std::uint64_t hash() const { return hash_; }

private:
    std::shared_ptr<const portable::Cover> cover_;
    std::uint64_t hash_ = 0;
};

/** What the user wants to become of a file, until it is applied. */
struct RowEdits {
    std::array<portable::Edit<std::string>, portable::text_field_count> texts;
    portable::Edit<int> year;
    portable::Edit<CoverPointer> cover;
    std::optional<QString> name; ///< the file's new name in its folder

    [[nodiscard]] portable::Edit<std::string>& text(portable::Field field) {
        return texts[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] const portable::Edit<std::string>& text(portable::Field field) const {
        return texts[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] bool changesTags() const;
    [[nodiscard]] bool empty() const { return !changesTags() && !name; }
    [[nodiscard]] portable::TagEdits tagEdits() const;
};

} // namespace velmora
