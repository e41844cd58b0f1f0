#include "background_decode.h"

namespace velmora {

BackgroundDecode::BackgroundDecode(QObject* parent) : QObject(parent) {
    thread_.setMaxThreadCount(1); // two large pictures at a time would take twice the memory
    timer_.setSingleShot(true);
    timer_.setInterval(std::chrono::seconds(2));
    connect(&timer_, &QTimer::timeout, this, &BackgroundDecode::giveUp);
}

BackgroundDecode::~BackgroundDecode() {
    cancel();
    thread_.waitForDone();
}

void BackgroundDecode::start(const EncodedPicture& picture, const QSize& box) {
    cancel();
    cancelled_ = std::make_shared<std::atomic<bool>>(false);
    timer_.start();
    thread_.start([this, picture, box, cancelled = cancelled_] {
        const QImage pixels = decodePictureToFit(picture.bytes, picture.header, box, *cancelled);
        QMetaObject::invokeMethod(
            this, [this, cancelled, pixels] { deliver(cancelled, pixels); }, Qt::QueuedConnection);
    });
}

void BackgroundDecode::cancel() {
    timer_.stop();
    thread_.clear();
    if (cancelled_) {
        cancelled_->store(true);
        cancelled_.reset();
    }
}

void BackgroundDecode::deliver(const Cancelled& cancelled, const QImage& pixels) {
    if (cancelled == cancelled_) {
        cancel();
        emit finished(pixels);
    }
}

void BackgroundDecode::giveUp() {
    cancel();
    emit gaveUp();
}

} // namespace velmora
