#pragma once

#include <QFrame>
#include <QImage>
#include <QPixmap>

class QAction;
class QMimeData;

namespace velmora {

/** Who is told that a drop has changed the cover art: the window's controller. */
class CoverArtReceiver {
public:
    virtual ~CoverArtReceiver() = default;
    /** SENDER is the view, whose image may be unchanged or missing. */
    virtual void coverArtImageChanged(QObject* sender) = 0;
};

/** The well that shows the cover art, takes images dropped on it, and cuts, copies and pastes them.
 *
 *  The image's device pixel ratio gives its nominal size. The view shows the image at that size, or smaller
 * where the view is smaller, its proportions kept.
 *
 *  A drop tells the controller, once, whether or not it held an image. Cut and paste change what the view
 * shows and nothing else. */
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
    /** Shows IMAGE; a null one empties the view. The controller is not told. */
    void setImage(const QImage& image);

    [[nodiscard]] FocusRingType focusRingType() const { return focusRingType_; }
    void setFocusRingType(FocusRingType type);

    /** The outlet: told of drops. Not owned; null (the default) tells nobody. */
    void setController(CoverArtReceiver* controller) { controller_ = controller; }
    [[nodiscard]] CoverArtReceiver* controller() const { return controller_; }

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
    void updateActions();
    void drawImage(QPainter& painter);
    void drawPlaceholder(QPainter& painter);
    void drawHighlight(QPainter& painter);

    QImage image_;
    QPixmap scaled_; ///< image_ as it was last drawn
    FocusRingType focusRingType_ = FocusRingType::None;
    CoverArtReceiver* controller_ = nullptr;
    QAction* cutAction_ = nullptr;
    QAction* copyAction_ = nullptr;
    QAction* pasteAction_ = nullptr;
};

} // namespace velmora
