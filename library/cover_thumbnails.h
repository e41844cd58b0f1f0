#pragma once

#include "library_model.h"

#include <QCache>
#include <QPixmap>
#include <QSet>

#include <atomic>

namespace velmora {

/** Small pictures of covers for the table's cells, read and decoded beside the main thread, those that were
   asked for last first; as many are kept as are looked at in a while. */
class CoverThumbnails : public QObject {
    Q_OBJECT
public:
    /** Pictures fit into SIDE x SIDE device pixels. MODEL outlives this. */
    CoverThumbnails(LibraryModel& model, int side, QObject* parent = nullptr);
    /** Waits for the picture that is being decoded. */
    ~CoverThumbnails() override;

    /** The picture of the cover that FILE has with its edits; invalid while there is none, or none yet: then
       the model tells when it comes. */
    [[nodiscard]] QVariant picture(int file);

private:
    struct Thumbnail {
        std::uint64_t hash = 0; ///< of the cover
        QPixmap pixels;         ///< null: the cover can't be decoded
    };

    void ask(int file, std::uint64_t hash);
    void take(int file, std::uint64_t hash, const QImage& pixels);

    LibraryModel& model_;
    int side_;
    QCache<int, Thumbnail> thumbnails_;
    QSet<int> asked_;
    int order_ = 0; ///< later requests come first
    std::atomic<bool> ending_ = false;
    QThreadPool thread_;
};

} // namespace velmora
