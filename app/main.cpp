#include "MyDocument.h"
#include "VelmoraDocumentController.h"

#include "platform/image.h"
#include "platform/legible_style.h"
#include "platform/localisation.h"
#include "platform/settings.h"
#include "platform/standard_streams.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv) {
    velmora::ensureStandardStreams();
    velmora::keepNoSettings();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/velmora.png")));
    velmora::installLegibleStyle();
    velmora::installLocalisation();
    velmora::allowLargeImages();

    const velmora::VelmoraDocumentController documentController;
    velmora::ApplicationTermination termination;
    velmora::MyDocument document(termination);
    document.makeWindow();
    document.showWindow();
    return QApplication::exec();
}
