#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

namespace velmora {

class CoverArtView;

/** Lets image files be dropped anywhere on a form: a drag of them over its other controls is one over the
   cover art view. Other files can't be dropped there, so that no text field takes a file's address for a
   text. Drags of anything else are left to the controls. */
class ImageFileDrops : public QObject {
public:
    /** FORM, all of whose controls are made, outlives this object; VIEW is one of them. */
    ImageFileDrops(QWidget& form, CoverArtView& view);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool takeFiles(QDropEvent* event);
    [[nodiscard]] QObject& view();

    CoverArtView& view_;
    bool hovering_ = false; ///< a drag over another control is one over the view
};

} // namespace velmora
