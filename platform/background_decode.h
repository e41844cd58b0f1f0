#pragma once

#include "image.h"

#include <QObject>
#include <QSize>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <memory>

namespace velmora {

/** Decodes pictures for a view beside the main thread, one at a time. */
class BackgroundDecode : public QObject {
    Q_OBJECT
public:
    explicit BackgroundDecode(QObject* parent = nullptr);
    /** Stops what runs and waits for it, which takes moments, or as long as the decoder of a format does that
       can't be stopped (WebP, TIFF). */
    ~BackgroundDecode() override;

    /** How long a picture may take: 2 seconds where it is not set. Nothing in the program calls it. */
    void setPatience(std::chrono::milliseconds patience) { timer_.setInterval(patience); }

    /** Decodes PICTURE to fit into BOX. One of the two signals follows, from the event loop; what was asked
       for earlier ends without a signal. */
    void start(const EncodedPicture& picture, const QSize& box);
    /** Ends what was asked for, without a signal. */
    void cancel();
    /** Waits until nothing is decoded, not even what nobody wants any more; a signal may still be on its way.
       Called by tests. */
    void waitForDone() { thread_.waitForDone(); }

signals:
    /** The picture is decoded; a null image when its data is damaged. */
    void finished(const QImage& pixels);
    /** It took too long. */
    void gaveUp();

private:
    /** True once nobody wants the result any more; the main thread sets it, the decoding thread reads it. */
    using Cancelled = std::shared_ptr<std::atomic<bool>>;

    void deliver(const Cancelled& cancelled, const QImage& pixels);
    void giveUp();

    QThreadPool thread_;
    QTimer timer_;
    Cancelled cancelled_;
};

} // namespace velmora
