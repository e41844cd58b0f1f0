// What the view takes from other programs and gives to them: the clipboard, and what is dragged on it.

#include "CoverArtView.h"

#include "image_data.h"

#include "platform/localisation.h"
#include "platform/log.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

namespace velmora {
namespace {

/** Takes part in a drag with a copy. A source that offers none is told that nothing is done with its data: it
   would delete what it takes for moved. */
void answerWithCopy(QDropEvent& event) {
    const bool offersCopy = event.possibleActions() & Qt::CopyAction;
    event.setDropAction(offersCopy ? Qt::CopyAction : Qt::IgnoreAction);
    event.accept();
}

/** The clipboard's contents; null when it has none. */
const QMimeData* clipboardData() {
    return QGuiApplication::clipboard()->mimeData();
}

/** A large cover goes to the clipboard as it came: its pixels would be waited for. */
void putOnClipboard(const ImageRef& cover) {
    const std::optional<EncodedPicture> slow = cover.slowlyDecoded();
    if (!slow) {
        QGuiApplication::clipboard()->setImage(cover.toQImage());
        return;
    }
    auto* data = new QMimeData;
    data->setData(QStringLiteral("image/") + QLatin1String(imageReaderName(slow->header.format)),
                  slow->bytes);
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace

// Cut, copy and paste

void CoverArtView::makeActions() {
    const auto make = [this](const char* text, QKeySequence::StandardKey key, void (CoverArtView::*slot)()) {
        auto* action = new QAction(localised(text), this);
        action->setShortcuts(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, slot);
        addAction(action);
        return action;
    };
    cutAction_ = make(QT_TRANSLATE_NOOP("Velmora", "Cu&t"), QKeySequence::Cut, &CoverArtView::cut);
    copyAction_ = make(QT_TRANSLATE_NOOP("Velmora", "&Copy"), QKeySequence::Copy, &CoverArtView::copy);
    pasteAction_ = make(QT_TRANSLATE_NOOP("Velmora", "&Paste"), QKeySequence::Paste, &CoverArtView::paste);
    updateActions();
}

void CoverArtView::updateActions() {
    cutAction_->setEnabled(static_cast<bool>(cover_));
    copyAction_->setEnabled(static_cast<bool>(cover_));
}

void CoverArtView::cut() {
    if (cover_) {
        copy();
        setCover({});
    }
}

void CoverArtView::copy() {
    if (cover_) {
        putOnClipboard(cover_);
    }
}

void CoverArtView::paste() {
    const QMimeData* offered = clipboardData();
    if (!offered) {
        return;
    }
    if (const ImageRef pasted = imageInData(*offered)) {
        setCover(pasted);
    }
}

void CoverArtView::contextMenuEvent(QContextMenuEvent* event) {
    // Asked only now: another program may have filled the clipboard since.
    const QMimeData* offered = clipboardData();
    pasteAction_->setEnabled(offered && offersImageData(*offered));
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions({cutAction_, copyAction_, pasteAction_});
    connect(menu, &QMenu::aboutToHide, this, [this] { pasteAction_->setEnabled(true); });
    menu->popup(event->globalPos());
}

// Dragging

void CoverArtView::draggingEntered() {
    appLog(QStringLiteral("in draggingEntered:\n"));
    setFocusRingType(FocusRingType::Default);
}

void CoverArtView::draggingExited() {
    appLog(QStringLiteral("in draggingExited:\n"));
    setFocusRingType(FocusRingType::None);
}

bool CoverArtView::prepareForDragOperation() {
    appLog(QStringLiteral("in prepareForDragOperation:\n"));
    return true;
}

bool CoverArtView::performDragOperation() {
    appLog(QStringLiteral("in performDragOperation:\n"));
    return true;
}

void CoverArtView::concludeDragOperation(const QMimeData& dragged) {
    if (const ImageRef dropped = imageInData(dragged)) {
        setCover(dropped);
    }
    setFocusRingType(FocusRingType::None);
    emit coverArtImageChanged(cover_);
}

void CoverArtView::dragEnterEvent(QDragEnterEvent* event) {
    if (!offersImageData(*event->mimeData())) {
        event->ignore();
        return;
    }
    draggingEntered();
    answerWithCopy(*event);
}

void CoverArtView::dragMoveEvent(QDragMoveEvent* event) {
    answerWithCopy(*event);
}

void CoverArtView::dragLeaveEvent(QDragLeaveEvent* event) {
    draggingExited();
    event->accept();
}

void CoverArtView::dropEvent(QDropEvent* event) {
    // One event stands for the whole end of a drag, and no leave event follows it.
    answerWithCopy(*event);
    if (prepareForDragOperation() && performDragOperation()) {
        concludeDragOperation(*event->mimeData());
    }
}

} // namespace velmora
