#include "library_columns.h"

#include "detail/file_name.h"

#include "browser/media_row.h"
#include "platform/file_path.h"
#include "platform/localisation.h"

#include <QCoreApplication>

#include <array>

namespace velmora {

namespace {

using portable::Edit;
using portable::Field;
using portable::Media;

constexpr int largestYear = 9999;

struct ColumnDescription {
    const char* key;
    const char* title;
    bool shownAtFirst;
};

constexpr std::array<ColumnDescription, libraryColumnCount> descriptions = {{
    {"name", QT_TRANSLATE_NOOP("Velmora", "Name"), true},
    {"folder", QT_TRANSLATE_NOOP("Velmora", "Folder"), true},
    {"kind", QT_TRANSLATE_NOOP("Velmora", "Kind"), true},
    {"title", QT_TRANSLATE_NOOP("Velmora", "Title"), true},
    {"artist", QT_TRANSLATE_NOOP("Velmora", "Artist / Cast"), true},
    {"album", QT_TRANSLATE_NOOP("Velmora", "Album / Director"), true},
    {"year", QT_TRANSLATE_NOOP("Velmora", "Year"), true},
    {"genre", QT_TRANSLATE_NOOP("Velmora", "Genre"), true},
    {"rating", QT_TRANSLATE_NOOP("Velmora", "Rating"), true},
    {"synopsis", QT_TRANSLATE_NOOP("Velmora", "Synopsis / Comment"), false},
    {"cover", QT_TRANSLATE_NOOP("Velmora", "Cover"), true},
    {"tags", QT_TRANSLATE_NOOP("Velmora", "Tags"), true},
    {"size", QT_TRANSLATE_NOOP("Velmora", "Size"), true},
    {"date", QT_TRANSLATE_NOOP("Velmora", "Date"), true},
}};

const ColumnDescription& describe(LibraryColumn column) {
    return descriptions.at(static_cast<std::size_t>(column));
}

QString kindName(Media media) {
    switch (media) {
    case Media::image:
        return localised("Picture");
    case Media::audio:
        return localised("Song");
    case Media::video:
        return localised("Film");
    case Media::other:
        break;
    }
    return localised("Other file");
}

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString fieldText(const LibraryRow& row, const RowEdits* edits, Field field) {
    if (edits && !edits->text(field).leaves_alone()) {
        return fromUtf8(edits->text(field).value().value_or(""));
    }
    return fromUtf8(row.text(field));
}

QString yearText(int year) {
    return year == 0 ? QString() : QString::number(year);
}

bool editYear(RowEdits& edits, const LibraryRow& row, const QString& text) {
    bool isNumber = false;
    const int year = text.isEmpty() ? 0 : text.toInt(&isNumber);
    if (!text.isEmpty() && (!isNumber || year < 0 || year > largestYear)) {
        return false;
    }
    if (row.state == ReadState::read && year == row.year) {
        edits.year = {};
    } else {
        edits.year = year == 0 ? Edit<int>::remove() : Edit<int>::set(year);
    }
    return true;
}

void editField(RowEdits& edits, const LibraryRow& row, Field field, const QString& text) {
    std::string value = text.toStdString();
    std::erase(value, '\0'); // ends a text in a tag
    if (row.state == ReadState::read && value == row.text(field)) {
        edits.text(field) = {};
    } else {
        edits.text(field) =
            value.empty() ? Edit<std::string>::remove() : Edit<std::string>::set(std::move(value));
    }
}

/** The extension stays what it is: it tells what the file is. */
bool editName(RowEdits& edits, const LibraryRow& row, const QString& text) {
    if (text == row.name()) { // whatever it looks like
        edits.name.reset();
        return true;
    }
    const QByteArray path = pathBytes(row.path());
    const QString extension = pathFromBytes(extensionOf(path));
    const bool hasIt = text.endsWith(extension, Qt::CaseInsensitive);
    const auto name = fileNameOf(hasIt ? text.chopped(extension.size()) : text, extensionOf(path));
    if (!name || hasFixedName(path)) {
        return false;
    }
    edits.name = pathFromBytes(name->bytes);
    if (edits.name == row.name()) {
        edits.name.reset();
    }
    return true;
}

} // namespace

QList<LibraryColumn> libraryColumns() {
    QList<LibraryColumn> list;
    for (int i = 0; i < libraryColumnCount; ++i) {
        list += static_cast<LibraryColumn>(i);
    }
    return list;
}

QString columnTitle(LibraryColumn column) {
    return localised(describe(column).title);
}

QString columnKey(LibraryColumn column) {
    return QLatin1String(describe(column).key);
}

bool isShownAtFirst(LibraryColumn column) {
    return describe(column).shownAtFirst;
}

bool isNumeric(LibraryColumn column) {
    return column == LibraryColumn::year || column == LibraryColumn::size || column == LibraryColumn::date;
}

std::optional<Field> fieldOf(LibraryColumn column, Media media) {
    const bool isFilm = media == Media::video;
    switch (column) {
    case LibraryColumn::title:
        return Field::title;
    case LibraryColumn::artist:
        return Field::artist;
    case LibraryColumn::album:
        return isFilm ? Field::director : Field::album;
    case LibraryColumn::genre:
        return Field::genre;
    case LibraryColumn::rating:
        return isFilm ? std::optional(Field::rating) : std::nullopt;
    case LibraryColumn::synopsis:
        return Field::synopsis;
    case LibraryColumn::year:
        return Field::year;
    case LibraryColumn::cover:
        return Field::cover;
    default:
        return std::nullopt;
    }
}

bool isEditable(LibraryColumn column, Media media) {
    if (column == LibraryColumn::name) {
        return true;
    }
    const bool hasTags = media == Media::audio || media == Media::video;
    return hasTags && column != LibraryColumn::cover && fieldOf(column, media);
}

QString columnText(const LibraryRow& row, const RowEdits* edits, LibraryColumn column) {
    switch (column) {
    case LibraryColumn::name:
        return edits && edits->name ? *edits->name : row.name();
    case LibraryColumn::folder:
        return row.folder();
    case LibraryColumn::kind:
        return kindName(row.media);
    case LibraryColumn::year:
        return yearText(yearOf(row, edits));
    case LibraryColumn::cover:
        return hasCover(row, edits) ? localised("Cover") : QString();
    case LibraryColumn::tags:
        return row.tags();
    case LibraryColumn::size:
        return sizeText(row.size);
    case LibraryColumn::date:
        return row.created == 0 ? QString() : createdText({row.created, 0});
    default:
        break;
    }
    const std::optional<Field> field = fieldOf(column, row.media);
    return field ? fieldText(row, edits, *field) : QString();
}

bool isEdited(const LibraryRow& row, const RowEdits* edits, LibraryColumn column) {
    if (!edits) {
        return false;
    }
    switch (column) {
    case LibraryColumn::name:
        return edits->name.has_value();
    case LibraryColumn::year:
        return !edits->year.leaves_alone();
    case LibraryColumn::cover:
        return !edits->cover.leaves_alone();
    default:
        break;
    }
    const std::optional<Field> field = fieldOf(column, row.media);
    return field && !edits->text(*field).leaves_alone();
}

int yearOf(const LibraryRow& row, const RowEdits* edits) {
    return edits && !edits->year.leaves_alone() ? edits->year.value().value_or(0) : row.year;
}

std::uint64_t coverHashOf(const LibraryRow& row, const RowEdits* edits) {
    if (edits && !edits->cover.leaves_alone()) {
        return edits->cover.value().value_or(nullptr).hash();
    }
    return row.coverHash;
}

bool hasCover(const LibraryRow& row, const RowEdits* edits) {
    return edits && !edits->cover.leaves_alone() ? edits->cover.sets() : row.coverHash != 0;
}

namespace {

MissingBits missingOf(const LibraryRow& row, const RowEdits* edits) {
    if (row.state != ReadState::read) {
        return 0;
    }
    MissingBits missing = row.tags().isEmpty() ? missingTag : MissingBits{0};
    for (std::size_t i = 0; i < portable::field_count; ++i) {
        const auto field = static_cast<Field>(i);
        const bool isThere = field == Field::year    ? yearOf(row, edits) != 0
                             : field == Field::cover ? hasCover(row, edits)
                                                     : !fieldText(row, edits, field).isEmpty();
        if (!isThere && portable::has_field(row.media, field)) {
            missing = static_cast<MissingBits>(missing | missingBit(field));
        }
    }
    return missing;
}

} // namespace

FilterText filterTextOf(const LibraryRow& row, const RowEdits* edits) {
    RowTexts texts;
    for (const LibraryColumn column : libraryColumns()) {
        texts[static_cast<std::size_t>(column)] = columnText(row, edits, column);
    }
    return {texts, yearOf(row, edits), missingOf(row, edits)};
}

bool editText(RowEdits& edits, const LibraryRow& row, LibraryColumn column, const QString& text) {
    if (!isEditable(column, row.media)) {
        return false;
    }
    if (column == LibraryColumn::name) {
        return editName(edits, row, text);
    }
    if (column == LibraryColumn::year) {
        return editYear(edits, row, text.trimmed());
    }
    editField(edits, row, *fieldOf(column, row.media), text);
    return true;
}

void copyEdit(RowEdits& edits, const RowEdits& before, const LibraryRow& row, LibraryColumn column) {
    if (column == LibraryColumn::name) {
        edits.name = before.name;
    } else if (column == LibraryColumn::year) {
        edits.year = before.year;
    } else if (const std::optional<Field> field = fieldOf(column, row.media)) {
        edits.text(*field) = before.text(*field);
    }
}

void editCover(RowEdits& edits, const LibraryRow& row, const CoverPointer& cover) {
    if (row.state == ReadState::read && cover.hash() == row.coverHash) {
        edits.cover = {};
    } else {
        edits.cover = cover ? Edit<CoverPointer>::set(cover) : Edit<CoverPointer>::remove();
    }
}

} // namespace velmora
