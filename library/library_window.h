#pragma once

#include "library_model.h"
#include "library_view.h"

#include "platform/document_window.h"

#include <QLabel>

namespace velmora {

/** The library table's window: all listed files with their tags. It hides when it is closed, and stays what it is. */
class LibraryWindow : public DocumentWindow {
    Q_OBJECT
public:
    explicit LibraryWindow(QWidget* parent = nullptr);

    [[nodiscard]] LibraryModel& model() { return model_; }
    [[nodiscard]] LibraryView& view() { return *view_; }

    /** Shows the window in front of others, with the keyboard in the table. */
    void present();

private:
    void makeMenus();
    void makeViewMenu();
    void makeLayout();
    void showStatus();

    LibraryModel model_;
    LibraryView* view_ = nullptr;
    QLabel* status_ = nullptr;
};

} // namespace velmora
