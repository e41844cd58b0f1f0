#include "web_view.h"

#include "platform/localisation.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QOpenGLContext>
#include <QPluginLoader>

#include <unistd.h>

/** Exported by QtGui and used by QtWebEngine itself; no public header declares it. */
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);

namespace velmora {

namespace {

const char* const moduleName = "velmora_web_engine";

/** Where the module may be, seen from the program: beside it, where an installation puts it, and where a
   build leaves it for the program and for its tests. */
const char* const moduleFolders[] = {".", "../lib/velmora/modules", "../platform/web/engine",
                                     "../../platform/web/engine"};

/** The engine reads the shared context's format while it starts and crashes without one. It draws in
   software, so a context that was never created does, and no graphics driver is loaded for it. */
void provideSharedContext() {
    if (!QOpenGLContext::globalShareContext()) {
        qt_gl_set_global_share_context(new QOpenGLContext(QCoreApplication::instance()));
    }
}

/** The engine ends the whole program, unsaved edits included, when it is started by root with
   its sandbox on. */
bool sandboxForbidsStart() {
    return ::geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX") &&
           !qEnvironmentVariable("QTWEBENGINE_CHROMIUM_FLAGS").contains(QLatin1String("--no-sandbox"));
}

WebEngineModule* loadModule() {
    for (const char* const folder : moduleFolders) {
        const QDir place(QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(folder));
        QPluginLoader loader(place.absoluteFilePath(QLatin1String(moduleName)));
        if (auto* const module = qobject_cast<WebEngineModule*>(loader.instance())) {
            return module;
        }
    }
    return nullptr;
}

/** Tells in PLACE why there are no pages. */
void showReason(QWidget* place, const QString& reason) {
    if (auto* const label = place->findChild<QLabel*>()) {
        label->setText(reason);
    }
}

std::unique_ptr<WebEngine> makeFromModule(WebEngineListener& listener, QWidget* parent) {
    if (sandboxForbidsStart()) {
        showReason(parent,
                   localised("Web pages are not shown when the program is run by the system administrator."));
        return nullptr;
    }
    provideSharedContext();
    WebEngineModule* const module = loadModule();
    if (!module) {
        showReason(parent, localised("The web browser component is not installed."));
        return nullptr;
    }
    return module->makeEngine(listener, parent);
}

} // namespace

WebView::EngineMaker engineFromModule() {
    return makeFromModule;
}

} // namespace velmora
