#pragma once

#include <QFrame>
#include <QImage>
#include <QPixmap>

class QAction;
class QMimeData;

namespace velmora {

/** The well that shows the cover art, takes images dropped on it, and cuts, copies and pastes them.
 *
 *  The image's device pixel ratio gives its nominal size. The view shows the image at that size, or smaller
 * where the view is smaller, its proportions kept.
 *
 *  A drop changes the file's cover art, and says so once, whether or not it held an image. Cut and paste
 * change what the view shows and nothing else. */
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

    /** The image shown; null when there is none. */
    [[nodiscard]] QImage image() const { return image_; }
    /** Shows IMAGE; a null one empties the view. */
    void setImage(const QImage& image);
    /** Shows IMAGE as the file's new cover art. */
    void changeImage(const QImage& image);

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
    /** The file's cover art is to be IMAGE, which the view shows: the one that was dropped, or that
       changeImage got. After a drop without an image it is the one from before, or null. */
    void coverArtImageChanged(const QImage& image);

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
    void drawPlaceholder(QPainter& painter);
    void drawHighlight(QPainter& painter);

    QImage image_;
    QPixmap scaled_; ///< image_ as it was last drawn
    FocusRingType focusRingType_ = FocusRingType::None;
    QAction* cutAction_ = nullptr;
    QAction* copyAction_ = nullptr;
    QAction* pasteAction_ = nullptr;
};

} // namespace velmora
