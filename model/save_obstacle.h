#pragma once

#include <QString>

#include <optional>

namespace velmora {

/** Why a save failed, for those who tell the user. */
struct SaveObstacle {
    enum class Remedy {
        None,         ///< nothing that a program could do
        PortableTags, ///< a save with portable tags, which replaces the file instead of changing it
        AnotherPlace, ///< a copy in another folder or on another disk
    };

    QString reason; ///< one sentence of the user's language without a full stop
    Remedy remedy = Remedy::None;
};

/** What a save in place that failed left to be found out of it. */
struct FailedSave {
    std::optional<quint64> size; ///< of the file when it began; nothing: there was none
    int error = 0;               ///< errno behind it; 0 where no call of the system had failed
};

} // namespace velmora
