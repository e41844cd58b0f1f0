#pragma once

#include "library_row.h"

#include <QObject>
#include <QThreadPool>

#include <deque>
#include <mutex>
#include <vector>

namespace velmora {

/** What was read of a row's file. */
struct RowReading {
    int row = 0;
    std::uint32_t ticket = 0;
    ReadState state = ReadState::failed;
    std::int16_t year = 0; ///< 0: none
    PackedTexts texts;
    QString tags; ///< which tags there are; or, where these can't be read, why
    std::uint64_t coverHash = 0;
    std::uint64_t size = 0;
    std::int64_t created = 0;
    FilterText filter;
};

/** Reads the tags of the file at PATH, on any thread; TICKET is handed through. */
[[nodiscard]] RowReading readRow(int row, std::uint32_t ticket, const QString& path);

/** Reads files' tags beside the main thread, on all cores: the newest request first, and before it those that
   somebody looks at. What was read comes in batches that the main thread hardly notices. */
class TagReader : public QObject {
    Q_OBJECT
public:
    struct Request {
        int row = 0;
        std::uint32_t ticket = 0;
        QString path;
    };

    explicit TagReader(QObject* parent = nullptr);
    /** Waits for the files that are being read. */
    ~TagReader() override;

    void request(Request request);
    /** REQUESTS, which were made before, come first now; what was preferred before comes in its turn
       again. */
    void prefer(std::vector<Request> requests);
    /** How many requests were not answered yet. */
    [[nodiscard]] std::size_t waiting() const;

signals:
    void rowsRead(const std::vector<velmora::RowReading>& readings);
    /** All that was asked for was read. */
    void idle();

private:
    void work();
    void startWorkers();
    [[nodiscard]] std::optional<Request> next();
    [[nodiscard]] bool takes(const Request& request);
    void keep(RowReading reading);
    void deliver();

    mutable std::mutex mutex_;
    // All of these under the mutex.
    std::deque<Request> stack_; ///< gives its memory back as it empties, as readings_ does
    std::deque<Request> preferred_;
    std::vector<std::uint32_t> pending_; ///< the ticket of the request that a row waits for; 0: none
    std::deque<RowReading> readings_;
    std::size_t unanswered_ = 0;
    int workers_ = 0;
    bool deliveryPosted_ = false;
    bool ending_ = false;

    QThreadPool threads_;
};

} // namespace velmora
