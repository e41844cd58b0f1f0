#include "image_fetch.h"

#include "detail/input_block.h"

#include "platform/modal_loop.h"

#include <QAbstractButton>
#include <QEventLoop>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <memory>

namespace velmora {

namespace {

/** More than any picture that can be decoded; a server that never stops sending must not fill the memory. */
constexpr qint64 largestTransfer = qint64{256} << 20;

/** A pipe or a device would block, or never end. */
bool canFetch(const QUrl& url) {
    if (url.isLocalFile()) {
        return QFileInfo(url.toLocalFile()).isFile();
    }
    const QString scheme = url.scheme();
    return scheme == QLatin1String("http") || scheme == QLatin1String("https") ||
           scheme == QLatin1String("data");
}

/** Whether all that the sender had to send has arrived. A server's answer with an error status is a whole
   answer. */
bool cameWhole(const QNetworkReply& reply) {
    const int error = reply.error();
    const bool answered = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    const bool contentError =
        error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError;
    const bool serverError =
        error >= QNetworkReply::InternalServerError && error <= QNetworkReply::UnknownServerError;
    return error == QNetworkReply::NoError || (answered && (contentError || serverError));
}

QNetworkRequest requestWithoutCache(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    return request;
}

} // namespace

std::optional<ImageRef> fetchImage(const QUrl& url, const QObject* context, QAbstractButton* cancel) {
    if (!canFetch(url)) {
        return ImageRef();
    }
    QNetworkAccessManager network;
    const std::unique_ptr<QNetworkReply> reply(network.get(requestWithoutCache(url)));
    const auto abortWhenTooLarge = [transfer = reply.get()](qint64 received) {
        if (received > largestTransfer) {
            transfer->abort();
        }
    };

    QEventLoop wait;
    QObject::connect(reply.get(), &QNetworkReply::finished, &wait, &QEventLoop::quit);
    QObject::connect(reply.get(), &QNetworkReply::downloadProgress, reply.get(), abortWhenTooLarge);
    QObject::connect(context, &QObject::destroyed, &wait, &QEventLoop::quit);
    if (cancel) {
        QObject::connect(cancel, &QAbstractButton::clicked, reply.get(), &QNetworkReply::abort);
    }
    if (!reply->isFinished()) {
        const ModalLoop blocking;
        const InputBlock noInput(cancel);
        wait.exec();
    }
    if (!reply->isFinished()) {
        reply->abort();
        return std::nullopt;
    }
    return cameWhole(*reply) ? ImageRef::fromBytes(reply->readAll()) : ImageRef();
}

} // namespace velmora
