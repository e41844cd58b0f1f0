#include "tag_reader.h"

#include "detail/background_thread.h"
#include "library_columns.h"

#include "model/portable_reason.h"
#include "platform/file_attributes.h"
#include "platform/file_path.h"
#include "portable/portable_tags.h"

#include <QStringList>
#include <QThread>
#include <QTimer>

#include <chrono>

namespace velmora {

namespace {

/** The main thread takes so many readings at once, and draws and answers the user between two batches. */
constexpr std::size_t batchSize = 200;
constexpr std::chrono::milliseconds collecting{15};

QString namesOfTags(const std::vector<std::string>& tags) {
    QStringList names;
    for (const std::string& tag : tags) {
        names += QString::fromStdString(tag);
    }
    return names.join(QLatin1String(", "));
}

} // namespace

RowReading readRow(int row, std::uint32_t ticket, const QString& path) {
    const QByteArray bytes = pathBytes(path);
    RowReading reading;
    reading.row = row;
    reading.ticket = ticket;
    LibraryRow file(path, 0);
    if (const auto attributes = fileAttributes(bytes)) {
        file.size = attributes->size.value_or(0);
        file.created = attributes->creationDate.value_or(FileTime{}).seconds;
    }
    const portable::ReadOutcome outcome = portable::read_tags(bytes.toStdString());
    file.media = outcome.kind ? outcome.kind->media : portable::Media::other;
    if (outcome.failure) {
        file.state = ReadState::failed;
        reading.tags = localisedReason(*outcome.failure);
    } else {
        file.state = ReadState::read;
        file.year = static_cast<std::int16_t>(outcome.values.year.value_or(0));
        reading.texts = PackedTexts(outcome.values);
        reading.tags = namesOfTags(outcome.tags);
        file.coverHash = outcome.values.cover ? coverHash(*outcome.values.cover) : 0;
    }
    file.setTexts(reading.texts, reading.tags, {});
    reading.state = file.state;
    reading.year = file.year;
    reading.coverHash = file.coverHash;
    reading.size = file.size;
    reading.created = file.created;
    reading.filter = filterTextOf(file, nullptr);
    return reading;
}

TagReader::TagReader(QObject* parent) : QObject(parent) {
    threads_.setMaxThreadCount(QThread::idealThreadCount());
}

TagReader::~TagReader() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    threads_.waitForDone();
}

void TagReader::request(Request request) {
    const std::lock_guard lock(mutex_);
    const auto row = static_cast<std::size_t>(request.row);
    if (pending_.size() <= row) {
        pending_.resize(row + 1);
    }
    unanswered_ += pending_[row] == 0 ? 1 : 0;
    pending_[row] = request.ticket;
    stack_.push_back(std::move(request));
    startWorkers();
}

void TagReader::prefer(std::vector<Request> requests) {
    const std::lock_guard lock(mutex_);
    preferred_.assign(std::make_move_iterator(requests.begin()), std::make_move_iterator(requests.end()));
}

std::size_t TagReader::waiting() const {
    const std::lock_guard lock(mutex_);
    return unanswered_;
}

void TagReader::startWorkers() {
    while (workers_ < threads_.maxThreadCount() && static_cast<std::size_t>(workers_) < stack_.size()) {
        ++workers_;
        threads_.start([this] { work(); });
    }
}

/** Whether REQUEST is still to be answered; it isn't afterwards. */
bool TagReader::takes(const Request& request) {
    std::uint32_t& pending = pending_[static_cast<std::size_t>(request.row)];
    if (pending == 0 || pending != request.ticket) {
        return false;
    }
    pending = 0;
    return true;
}

/** The request to be answered now. Nothing ends the worker that asked. */
std::optional<TagReader::Request> TagReader::next() {
    const std::lock_guard lock(mutex_);
    for (std::deque<Request>* list : {&preferred_, &stack_}) {
        while (!list->empty() && !ending_) {
            Request request = std::move(list->back());
            list->pop_back();
            if (takes(request)) {
                return request;
            }
        }
    }
    --workers_;
    return std::nullopt;
}

void TagReader::work() {
    stayInBackground();
    while (const std::optional<Request> request = next()) {
        keep(readRow(request->row, request->ticket, request->path));
    }
}

void TagReader::keep(RowReading reading) {
    const std::lock_guard lock(mutex_);
    readings_.push_back(std::move(reading));
    if (!deliveryPosted_) {
        deliveryPosted_ = true;
        QMetaObject::invokeMethod(
            this, [this] { QTimer::singleShot(collecting, this, &TagReader::deliver); },
            Qt::QueuedConnection);
    }
}

void TagReader::deliver() {
    std::vector<RowReading> batch;
    bool last = false;
    {
        const std::lock_guard lock(mutex_);
        const std::size_t count = std::min(batchSize, readings_.size());
        const auto begin = readings_.end() - static_cast<std::ptrdiff_t>(count);
        batch.assign(std::make_move_iterator(begin), std::make_move_iterator(readings_.end()));
        readings_.erase(begin, readings_.end());
        unanswered_ -= count;
        deliveryPosted_ = !readings_.empty();
        if (deliveryPosted_) {
            QTimer::singleShot(0, this, &TagReader::deliver);
        }
        last = unanswered_ == 0;
    }
    emit rowsRead(batch);
    if (last) {
        emit idle();
    }
}

} // namespace velmora
