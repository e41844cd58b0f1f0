/** The yardstick of a start: a window with the widgets of the program's layouts, plain and empty. */

#include "ui_bare_MyDocument.h"
#include "ui_bare_TagWebBrowser.h"
#include "ui_bare_media_list.h"
#include "ui_bare_movie_preview.h"
#include "ui_bare_tag_form.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    Ui::MyDocument parts;
    parts.setupUi(&window);

    auto* const list = new QWidget;
    Ui::MediaList().setupUi(list);
    parts.split_upper->addWidget(list);

    auto* const editor = new QWidget;
    Ui::TagForm form;
    form.setupUi(editor);
    Ui::MoviePreview().setupUi(form.box_preview);
    parts.split_upper->addWidget(editor);

    auto* const web = new QWidget;
    Ui::TagWebBrowser().setupUi(web);
    parts.split_main->addWidget(web);

    window.show();
    return QApplication::exec();
}
