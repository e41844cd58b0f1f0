#pragma once

#include "portable/tag_values.h"

#include <QString>

#include <optional>
#include <variant>
#include <vector>

namespace velmora {

/** How names of files and values of tags stand for each other: "%artist% - %title%".

   A place is a word between percent signs: title, artist (or cast), album, director, synopsis (or comment),
   genre, rating, year; and folder, the name of the folder that the file is in; and skip, any text. "%%" is a
   percent sign. All else is text that the name has as it stands, without regard to case. The extension is not
   part of it. */
class NamePattern {
public:
    /** What the pattern is for. */
    enum class Use {
        /** Tags from names. A slash divides folders from the file, so that "%artist%/%title%" looks at the
           last two parts of a path. Text must divide one place from the next, and no field comes twice. */
        read,
        /** Names from tags: of the file alone, so that there is no slash, and nothing to skip. */
        write,
    };

    /** Why a text is no pattern: one sentence in the user's language. */
    struct Mistake {
        QString sentence;
    };

    [[nodiscard]] static std::variant<NamePattern, Mistake> parsed(const QString& text, Use use);

    /** The fields that have a place, in their order; each once. */
    [[nodiscard]] std::vector<portable::Field> fields() const;

    /** What the path of a file says, with the extension off; every field of the pattern is set. Each place
       takes as little as it can, and at least one character; blanks around it are not part of it; a year is
       one to four digits. Texts are composed (NFC). Nothing where PATH does not look like that. Of a pattern
       that reads. */
    [[nodiscard]] std::optional<portable::TagEdits> tagsFrom(const QString& path) const;

    /** What VALUES make of the pattern, for a file in the folder named FOLDER. Nothing that a file system
       asks for is done to it. The first field that VALUES do not have, where there is one. Of a pattern that
       writes. */
    [[nodiscard]] std::variant<QString, portable::Field> nameFrom(const portable::TagValues& values,
                                                                  const QString& folder) const;

private:
    struct Part {
        enum class Kind { text, field, folder, skip };
        Kind kind = Kind::text;
        QString text;
        portable::Field field = portable::Field::title;
    };
    using Parts = std::vector<Part>;
    class Match;

    static std::optional<Part> placeNamed(const QString& name);
    static std::optional<Mistake> mistakeIn(const std::vector<Parts>& components, Use use);

    /** One for each part of the path, the file's last. */
    std::vector<Parts> components_;
};

} // namespace velmora
