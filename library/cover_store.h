#pragma once

#include "portable/tag_values.h"

#include <QByteArray>
#include <QHash>
#include <QTemporaryFile>

#include <optional>
#include <vector>

namespace velmora {

/** Covers kept in a temporary file, the same one once. Used by one thread at a time. */
class CoverStore {
public:
    using Number = std::size_t;

    /** Nothing where the temporary file can't be written. */
    [[nodiscard]] std::optional<Number> put(const portable::Cover& cover);
    /** Nothing where it can't be read. */
    [[nodiscard]] std::optional<portable::Cover> get(Number number);

private:
    struct Place {
        qint64 position = 0;
        qint64 size = 0;
        std::string mime;
    };

    QTemporaryFile file_;
    std::vector<Place> places_;
    QHash<QByteArray, Number> known_; ///< by digest
    qint64 end_ = 0;
};

} // namespace velmora
