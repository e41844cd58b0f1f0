#include "names_preview.h"

#include "rename_plan.h"

#include "library/library_columns.h"
#include "platform/file_path.h"
#include "platform/localisation.h"

namespace velmora {

namespace {

using portable::Field;

LibraryColumn columnOf(Field field) {
    switch (field) {
    case Field::title:
        return LibraryColumn::title;
    case Field::artist:
        return LibraryColumn::artist;
    case Field::album:
    case Field::director:
        return LibraryColumn::album;
    case Field::synopsis:
        return LibraryColumn::synopsis;
    case Field::genre:
        return LibraryColumn::genre;
    case Field::rating:
        return LibraryColumn::rating;
    case Field::year:
        return LibraryColumn::year;
    case Field::cover:
        break;
    }
    return LibraryColumn::cover;
}

QString valueIn(const portable::TagEdits& edits, Field field) {
    return field == Field::year ? QString::number(edits.year.value().value_or(0))
                                : QString::fromStdString(edits.text(field).value().value_or(std::string()));
}

QString valueIn(const portable::TagValues& values, Field field) {
    if (field == Field::year) {
        return values.year ? QString::number(*values.year) : QString();
    }
    return QString::fromStdString(values.text(field).value_or(std::string()));
}

/** PREVIEW, left alone because of NOTE. */
NamesPreviewRow failing(NamesPreviewRow preview, const QString& note) {
    preview.note = note;
    preview.fails = true;
    return preview;
}

NamesPreviewRow tagsPreview(const NamesSource& source, const NamePattern& pattern,
                            const std::vector<Field>& fields) {
    NamesPreviewRow preview{source.file, source.name, {}, {}, false, false};
    const QString folder = pathFolder(source.path);
    const auto edits = pattern.tagsFrom(folder + QLatin1Char('/') + source.name);
    if (!edits) {
        return failing(preview, localised("The name does not fit the pattern"));
    }
    bool changes = false;
    for (const Field field : fields) {
        preview.texts += valueIn(*edits, field);
        changes = changes || preview.texts.back() != valueIn(source.values, field);
    }
    for (const Field field : fields) {
        if (!isEditable(columnOf(field), source.media) || fieldOf(columnOf(field), source.media) != field) {
            return failing(preview,
                           localised("Files of this kind have no such field: %@", fieldTitle(field)));
        }
    }
    preview.applies = changes || source.state != ReadState::read;
    preview.note = preview.applies ? QString() : localised("It says so already");
    return preview;
}

QString noteOf(const PlannedRename& planned) {
    switch (planned.mark) {
    case RenameMark::unchanged:
        return localised("It has that name already");
    case RenameMark::renamed:
        return {};
    case RenameMark::shortened:
        return localised("The name is cut: it would be too long");
    case RenameMark::missingValue:
        return localised("No value: %@", fieldTitle(planned.missing));
    case RenameMark::noName:
        return localised("No name is left of the values");
    case RenameMark::fixedName:
        return localised("The file keeps its name: its tag lies in another file that goes by it");
    case RenameMark::clashesWithRow:
        return localised("Another row has that name or is to get it");
    case RenameMark::clashesWithFile:
        return localised("There is a file of that name");
    }
    return {};
}

NamesPreviewRow namePreview(const NamesSource& source, const PlannedRename& planned) {
    NamesPreviewRow preview{source.file, source.name, {}, {}, false, false};
    if (source.state != ReadState::read) {
        return failing(preview, source.state == ReadState::waiting
                                    ? localised("Its tags have not been read yet")
                                    : localised("Its tags can't be read"));
    }
    const QString name = lastPathComponent(pathFromBytes(planned.to));
    const bool clashes =
        planned.mark == RenameMark::clashesWithRow || planned.mark == RenameMark::clashesWithFile;
    const bool same = planned.mark == RenameMark::unchanged;
    if (planned.isRenamed() || clashes || same) {
        preview.texts += name;
    }
    if (!planned.isRenamed() && !same) {
        return failing(preview, noteOf(planned));
    }
    preview.note = noteOf(planned);
    // A name that the table was to give and has not given yet may be taken back.
    preview.applies = planned.isRenamed() || source.name != name;
    return preview;
}

} // namespace

NamesSource namesSource(int file, const LibraryRow& row, const RowEdits* edits) {
    NamesSource source;
    source.file = file;
    source.path = row.path();
    source.name = edits && edits->name ? *edits->name : row.name();
    source.media = row.media;
    source.state = row.state;
    for (std::size_t index = 0; index < portable::text_field_count; ++index) {
        const std::string_view text = row.text(static_cast<Field>(index));
        std::optional<std::string> value;
        if (!text.empty()) {
            value = text;
        }
        source.values.texts[index] = edits ? edits->texts[index].applied_to(value) : value;
    }
    if (const int year = yearOf(row, edits); year != 0) {
        source.values.year = year;
    }
    return source;
}

std::vector<NamesPreviewRow> previewTagsFromNames(const std::vector<NamesSource>& sources,
                                                  const NamePattern& pattern) {
    const std::vector<Field> fields = pattern.fields();
    std::vector<NamesPreviewRow> rows;
    rows.reserve(sources.size());
    for (const NamesSource& source : sources) {
        rows.push_back(tagsPreview(source, pattern, fields));
    }
    return rows;
}

std::vector<NamesPreviewRow> previewNamesFromTags(const std::vector<NamesSource>& sources,
                                                  const NamePattern& pattern,
                                                  const std::vector<FileRename>& others) {
    std::vector<RenameRow> renames;
    renames.reserve(sources.size());
    for (const NamesSource& source : sources) {
        renames.push_back({source.path, source.values});
    }
    const std::vector<PlannedRename> plan = planRenames(renames, pattern, others);
    std::vector<NamesPreviewRow> rows;
    rows.reserve(sources.size());
    for (std::size_t index = 0; index < sources.size(); ++index) {
        rows.push_back(namePreview(sources[index], plan[index]));
    }
    return rows;
}

RowEdits withTags(RowEdits edits, const LibraryRow& row, const std::vector<Field>& fields,
                  const NamesPreviewRow& preview) {
    for (std::size_t index = 0; index < fields.size(); ++index) {
        static_cast<void>(editText(edits, row, columnOf(fields[index]),
                                   preview.texts.value(static_cast<qsizetype>(index))));
    }
    return edits;
}

RowEdits withName(RowEdits edits, const LibraryRow& row, const NamesPreviewRow& preview) {
    edits.name = preview.texts.front();
    if (edits.name == row.name()) {
        edits.name.reset();
    }
    return edits;
}

QString fieldTitle(Field field) {
    return columnTitle(columnOf(field));
}

} // namespace velmora
