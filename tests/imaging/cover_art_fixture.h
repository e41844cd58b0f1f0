#pragma once

#include "imaging/CoverArtView.h"
#include "support/pictures.h"
#include "support/stream_capture.h"

#include <QImage>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace velmora::test {

/** What the view told of the cover, and what the view was like at that moment. */
struct RecordingReceiver {
    struct Call {
        QImage image;
        QImage shown;
        CoverArtView::FocusRingType ring;
    };
    std::vector<Call> calls;
};

/** The cover art view in a shown window, with a receiver that records what it is told. */
class CoverArtViewTest : public testing::Test {
protected:
    CoverArtViewTest() : view(new CoverArtView) {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(view);
        window.resize(220, 200);
        window.show();
        QObject::connect(view, &CoverArtView::coverArtImageChanged, view, [this](const ImageRef& cover) {
            receiver.calls.push_back({cover.toQImage(), view->image(), view->focusRingType()});
        });
        log.emplace(stderr);
    }

    static QImage plain(const QColor& colour, QSize size = QSize(60, 40)) {
        return test::plain(size, colour);
    }

    /** The view's pixels. */
    [[nodiscard]] QImage picture() const {
        return view->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    QWidget window;
    CoverArtView* view;
    RecordingReceiver receiver;
    std::optional<StreamCapture> log;
};

} // namespace velmora::test
