#include "MyDocument.h"
#include "VelmoraDocumentController.h"

#include "platform/localisation.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication::setAttribute(
        Qt::AA_ShareOpenGLContexts); // the web view asks for it before the application is made
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/velmora.png")));
    velmora::installLocalisation();

    velmora::VelmoraDocumentController documentController;
    velmora::ApplicationTermination termination;
    velmora::MyDocument document(termination);
    document.makeWindow();
    document.showWindow();
    return QApplication::exec();
}
