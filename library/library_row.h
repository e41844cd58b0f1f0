#pragma once

#include "filter_text.h"

#include "portable/media_kind.h"
#include "portable/tag_values.h"

#include <QByteArray>
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

    /** The value of FIELD, one of the text fields, in UTF-8; empty where there is none. Good as long as this object.
     */
    [[nodiscard]] std::string_view text(portable::Field field) const;

private:
    /** The end of each text, and the texts one behind the other; empty when all of them are. */
    QByteArray block_;
};

/** What is known of a file's tags. */
enum class ReadState : std::uint8_t { waiting, read, failed };

/** A file of the library table as it was last read; rows of 100,000 files are kept. */
struct LibraryRow {
    QString path;
    portable::Media media = portable::Media::other;
    ReadState state = ReadState::waiting;
    bool removed = false;     ///< no longer listed; the place is not given to another file
    std::int16_t year = 0;    ///< 0: none
    std::uint32_t ticket = 0; ///< of the last request to read it
    PackedTexts texts;
    QString tags;                ///< which tags there are; or, where these can't be read, why
    std::uint64_t coverHash = 0; ///< tells different covers apart; 0: no cover
    std::uint64_t size = 0;      ///< bytes
    std::int64_t created = 0;    ///< seconds since 1970-01-01 UTC

    FilterText filter; ///< what a filter looks at; empty until it is asked for

    [[nodiscard]] QString name() const;
    [[nodiscard]] QString folder() const;
};

/** A number that is the same for the same bytes, and hardly ever for others; never 0. */
[[nodiscard]] std::uint64_t coverHash(const portable::Cover& cover);

/** A cover that several rows share. */
using CoverPointer = std::shared_ptr<const portable::Cover>;

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
