#include "cover_store.h"

#include <QCryptographicHash>

namespace velmora {

std::optional<CoverStore::Number> CoverStore::put(const portable::Cover& cover) {
    const QByteArrayView bytes(reinterpret_cast<const char*>(cover.bytes.data()),
                               static_cast<qsizetype>(cover.bytes.size()));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes);
    hash.addData(QByteArrayView(cover.mime.data(), static_cast<qsizetype>(cover.mime.size())));
    const QByteArray digest = hash.result();
    if (const auto found = known_.constFind(digest); found != known_.constEnd()) {
        return *found;
    }
    if (!file_.isOpen() && !file_.open()) {
        return std::nullopt;
    }
    if (!file_.seek(end_) || file_.write(bytes.data(), bytes.size()) != bytes.size() || !file_.flush()) {
        return std::nullopt;
    }
    places_.push_back({end_, bytes.size(), cover.mime});
    end_ += bytes.size();
    known_.insert(digest, places_.size() - 1);
    return places_.size() - 1;
}

std::optional<portable::Cover> CoverStore::get(Number number) {
    const Place& place = places_.at(number);
    portable::Cover cover{std::vector<std::uint8_t>(static_cast<std::size_t>(place.size)), place.mime};
    if (!file_.seek(place.position) ||
        file_.read(reinterpret_cast<char*>(cover.bytes.data()), place.size) != place.size) {
        return std::nullopt;
    }
    return cover;
}

} // namespace velmora
