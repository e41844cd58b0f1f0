#pragma once

#include "platform/background_decode.h"

#include <QFrame>
#include <QImage>
#include <QPixmap>

class QAction;
class QMimeData;

namespace velmora {

/** The well that shows the cover art, takes images dropped on it, and cuts, copies and pastes them.

   The image's device pixel ratio gives its nominal size. The view shows the image at that size, or smaller
   where the view is smaller, its proportions kept. One that is slowly decoded appears a while after it was
   set; when that takes too long, the view says that it is too large to show, and has it all the same.

   A drop changes the file's cover art, and says so once, whether or not it held an image. Cut and paste
   change what the view shows and nothing else. */
class CoverArtView : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(FocusRingType focusRingType READ focusRingType WRITE setFocusRingType)
public:
    /** Default: a drag hovers over the view and the highlight frame is drawn. None: it does not. */
    enum class FocusRingType { Default, None };
    Q_ENUM(FocusRingType)

    explicit CoverArtView(QWidget* parent = nullptr);
    ~CoverArtView() override;

    /** The image that the view has; none when it is empty. */
    [[nodiscard]] ImageRef cover() const { return cover_; }
    /** Its pixels; null when there is none. All of them, and waited for. */
    [[nodiscard]] QImage image() const { return cover_.toQImage(); }
    /** Shows COVER; none empties the view. */
    void setCover(const ImageRef& cover);
    /** What the view has to show of its image: all of it, or as much of a large one as it needs; null while
       there is none, or none yet. */
    [[nodiscard]] QImage shownImage() const { return shown_; }
    void setImage(const QImage& image) { setCover(image); }
    /** Shows COVER as the file's new cover art. */
    void changeImage(const ImageRef& cover);

    [[nodiscard]] FocusRingType focusRingType() const { return focusRingType_; }
    void setFocusRingType(FocusRingType type);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

public slots:
    /** Copies the image to the clipboard and empties the view; without an image nothing happens. */
    void cut();
    void copy();
    /** Shows the clipboard's image; without one nothing happens. */
    void paste();

signals:
    /** The view shows another image, or none, whoever changed it. */
    void imageChanged();
    /** shownImage is another one, or none. */
    void shownImageChanged();
    /** The image could not be decoded in time and is not shown. */
    void tooLargeToShow();
    /** The file's cover art is to be COVER, which the view shows: the one that was dropped, or that
       changeImage got. After a drop without an image it is the one from before, or none. */
    void coverArtImageChanged(const ImageRef& cover);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // The stages of a drag, as the application log names them.
    void draggingEntered();
    void draggingExited();
    [[nodiscard]] bool prepareForDragOperation();
    [[nodiscard]] bool performDragOperation();
    void concludeDragOperation(const QMimeData& dragged);

    void makeActions();
    void describe();
    void updateActions();
    void drawImage(QPainter& painter);
    void drawText(QPainter& painter);
    void drawHighlight(QPainter& painter);

    void showDecoded(const QImage& pixels);
    void giveUpShowing();

    ImageRef cover_;
    QImage
        shown_; ///< the cover's pixels, or as many as the view needs of a large one; null while it has none
    QString text_; ///< what the view says while it shows no pixels
    BackgroundDecode decode_;
    QPixmap scaled_; ///< shown_ as it was last drawn
    FocusRingType focusRingType_ = FocusRingType::None;
    QAction* cutAction_ = nullptr;
    QAction* copyAction_ = nullptr;
    QAction* pasteAction_ = nullptr;
};

} // namespace velmora
