#include "name_pattern.h"

#include "platform/file_path.h"
#include "platform/localisation.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmora {

namespace {

using portable::Field;

struct FieldPlace {
    const char* name;
    Field field;
};

constexpr std::array fieldPlaces = {
    FieldPlace{"title", Field::title},       FieldPlace{"artist", Field::artist},
    FieldPlace{"cast", Field::artist},       FieldPlace{"album", Field::album},
    FieldPlace{"director", Field::director}, FieldPlace{"synopsis", Field::synopsis},
    FieldPlace{"comment", Field::synopsis},  FieldPlace{"genre", Field::genre},
    FieldPlace{"rating", Field::rating},     FieldPlace{"year", Field::year},
};

/** The year that TEXT is; 0 where it is none. */
int yearOf(const QString& text) {
    const bool numeric =
        std::all_of(text.begin(), text.end(), [](QChar unit) { return unit >= u'0' && unit <= u'9'; });
    return numeric && text.size() <= 4 ? text.toInt() : 0;
}

void set(portable::TagEdits& edits, Field field, const QString& text) {
    if (field == Field::year) {
        edits.year = portable::Edit<int>::set(yearOf(text));
    } else {
        edits.text(field) =
            portable::Edit<std::string>::set(text.normalized(QString::NormalizationForm_C).toStdString());
    }
}

/** The last COUNT parts of PATH, of the file's without its extension; fewer where it has no more. */
QStringList lastParts(const QString& path, std::size_t count) {
    const QStringList parts = path.split(u'/', Qt::SkipEmptyParts);
    QStringList last = parts.mid(std::max<qsizetype>(0, parts.size() - static_cast<qsizetype>(count)));
    if (!last.isEmpty() && last.back().lastIndexOf(u'.') > 0) {
        last.back().truncate(last.back().lastIndexOf(u'.'));
    }
    return last;
}

} // namespace

/** A search for places in one part of a path. */
class NamePattern::Match {
public:
    Match(const Parts& parts, const QString& text)
        : parts_(parts), text_(text), ends_(parts.size()),
          failed_(parts.size() + 1, std::vector<bool>(static_cast<std::size_t>(text.size()) + 1)) {}

    [[nodiscard]] bool fits() { return fitsFrom(0, 0); }
    /** What stands in place INDEX, once it fits. */
    [[nodiscard]] QString value(std::size_t index) const {
        const qsizetype begin = index == 0 ? 0 : ends_[index - 1];
        return text_.mid(begin, ends_[index] - begin).trimmed();
    }

private:
    /** Whether the parts from INDEX on are what the text is from BEGIN on. */
    bool fitsFrom(std::size_t index, qsizetype begin) {
        if (index == parts_.size()) {
            return begin == text_.size();
        }
        // What has failed once fails again: the search is no longer than parts times characters times
        // characters.
        std::vector<bool>& failed = failed_[index];
        if (failed[static_cast<std::size_t>(begin)]) {
            return false;
        }
        const bool fits =
            parts_[index].kind == Part::Kind::text ? textFits(index, begin) : placeFits(index, begin);
        failed[static_cast<std::size_t>(begin)] = !fits;
        return fits;
    }

    bool textFits(std::size_t index, qsizetype begin) {
        const QString& text = parts_[index].text;
        ends_[index] = begin + text.size();
        return QStringView(text_).mid(begin).startsWith(text, Qt::CaseInsensitive) &&
               fitsFrom(index + 1, ends_[index]);
    }

    bool placeFits(std::size_t index, qsizetype begin) {
        for (qsizetype end = begin + 1; end <= text_.size(); ++end) {
            ends_[index] = end;
            if (mayBe(parts_[index], value(index)) && fitsFrom(index + 1, end)) {
                ends_[index] = end;
                return true;
            }
        }
        return false;
    }

    static bool mayBe(const Part& part, const QString& value) {
        const bool year = part.kind == Part::Kind::field && part.field == Field::year;
        // A tag's text can't have the bytes that are none.
        const bool text = part.kind != Part::Kind::field || value.isValidUtf16();
        return year ? yearOf(value) > 0 : !value.isEmpty() && text;
    }

    const Parts& parts_;
    const QString& text_;
    std::vector<qsizetype> ends_; ///< of each part, as far as the search has come
    std::vector<std::vector<bool>> failed_;
};

std::optional<NamePattern::Part> NamePattern::placeNamed(const QString& name) {
    Part part;
    const QString lower = name.toLower();
    const auto* const place = std::find_if(fieldPlaces.begin(), fieldPlaces.end(), [&lower](const auto& row) {
        return lower == QLatin1String(row.name);
    });
    if (place != fieldPlaces.end()) {
        part.kind = Part::Kind::field;
        part.field = place->field;
    } else if (lower == QLatin1String("folder")) {
        part.kind = Part::Kind::folder;
    } else if (lower == QLatin1String("skip")) {
        part.kind = Part::Kind::skip;
    } else {
        return std::nullopt;
    }
    return part;
}

std::variant<NamePattern, NamePattern::Mistake> NamePattern::parsed(const QString& text, Use use) {
    NamePattern pattern;
    pattern.components_.emplace_back();
    const auto append = [&pattern](QChar unit) {
        Parts& parts = pattern.components_.back();
        if (parts.empty() || parts.back().kind != Part::Kind::text) {
            parts.emplace_back();
        }
        parts.back().text += unit;
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'/') {
            pattern.components_.emplace_back();
        } else if (text[at] != u'%') {
            append(text[at]);
        } else {
            const qsizetype end = text.indexOf(u'%', at + 1);
            if (end < 0) {
                return Mistake{localised("A percent sign stands alone. Write %% for a percent sign.")};
            }
            const QString name = text.mid(at + 1, end - at - 1);
            const std::optional<Part> place = placeNamed(name);
            if (name.isEmpty()) {
                append(u'%');
            } else if (place) {
                pattern.components_.back().push_back(*place);
            } else {
                return Mistake{localised("There is no field \"%@\".", name)};
            }
            at = end;
        }
    }
    if (std::optional<Mistake> mistake = mistakeIn(pattern.components_, use)) {
        return *mistake;
    }
    return pattern;
}

std::optional<NamePattern::Mistake> NamePattern::mistakeIn(const std::vector<Parts>& components, Use use) {
    std::vector<Field> seen;
    for (const Parts& parts : components) {
        if (parts.empty()) {
            return Mistake{components.size() == 1 ? localised("The pattern is empty.")
                                                  : localised("There is nothing beside a slash.")};
        }
        bool afterPlace = false;
        for (const Part& part : parts) {
            const bool twice =
                part.kind == Part::Kind::field && std::count(seen.begin(), seen.end(), part.field) > 0;
            if (part.kind == Part::Kind::field) {
                seen.push_back(part.field);
            }
            const bool place = part.kind != Part::Kind::text;
            if (use == Use::read && place && afterPlace) {
                return Mistake{localised("Nothing divides one field from the next.")};
            }
            if (use == Use::read && twice) {
                return Mistake{localised("A field comes twice.")};
            }
            if (use == Use::write && part.kind == Part::Kind::skip) {
                return Mistake{localised("%skip% has no place in a new name.")};
            }
            afterPlace = place;
        }
    }
    if (use == Use::write && components.size() > 1) {
        return Mistake{localised("A name has no slash: files stay in their folders.")};
    }
    if (seen.empty()) {
        return Mistake{localised("There is no field in the pattern.")};
    }
    return std::nullopt;
}

std::vector<Field> NamePattern::fields() const {
    std::vector<Field> fields;
    for (const Parts& parts : components_) {
        for (const Part& part : parts) {
            if (part.kind == Part::Kind::field &&
                std::find(fields.begin(), fields.end(), part.field) == fields.end()) {
                fields.push_back(part.field);
            }
        }
    }
    return fields;
}

std::optional<portable::TagEdits> NamePattern::tagsFrom(const QString& path) const {
    const QStringList texts = lastParts(path, components_.size());
    if (static_cast<std::size_t>(texts.size()) < components_.size()) {
        return std::nullopt;
    }
    portable::TagEdits edits;
    for (std::size_t component = 0; component < components_.size(); ++component) {
        const Parts& parts = components_[component];
        Match match(parts, texts[static_cast<qsizetype>(component)]);
        if (!match.fits()) {
            return std::nullopt;
        }
        for (std::size_t index = 0; index < parts.size(); ++index) {
            if (parts[index].kind == Part::Kind::field) {
                set(edits, parts[index].field, match.value(index));
            }
        }
    }
    return edits;
}

std::variant<QString, Field> NamePattern::nameFrom(const portable::TagValues& values,
                                                   const QString& folder) const {
    QString name;
    for (const Part& part : components_.back()) {
        switch (part.kind) {
        case Part::Kind::field:
            if (part.field == Field::year) {
                if (!values.year) {
                    return part.field;
                }
                name += QString::number(*values.year);
            } else {
                const QString text = QString::fromStdString(values.text(part.field).value_or(std::string()));
                if (text.trimmed().isEmpty()) {
                    return part.field;
                }
                name += text.trimmed();
            }
            break;
        case Part::Kind::folder:
            name += folder;
            break;
        default:
            name += part.text;
        }
    }
    return name;
}

} // namespace velmora
