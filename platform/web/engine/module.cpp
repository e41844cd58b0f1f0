#include "page_engine.h"

#include <QLoggingCategory>
#include <QObject>
#include <QQuickWindow>

namespace velmora {

namespace {

QLoggingCategory::CategoryFilter nextFilter = nullptr;

void silenceEngineContext(QLoggingCategory* category) {
    if (nextFilter) {
        nextFilter(category);
    }
    if (qstrcmp(category->categoryName(), "qt.webenginecontext") == 0) {
        category->setEnabled(QtInfoMsg, false);
        category->setEnabled(QtWarningMsg, false);
    }
}

/** Keeps what the engine has to say about the graphics hardware that it does not use out of the log while it
   starts. */
class QuietStart {
public:
    QuietStart() : warned_(category()->isEnabled(QtWarningMsg)) {
        category()->setEnabled(QtWarningMsg, false);
        nextFilter = QLoggingCategory::installFilter(silenceEngineContext);
    }
    ~QuietStart() {
        QLoggingCategory::installFilter(nextFilter);
        category()->setEnabled(QtWarningMsg, warned_);
    }
    QuietStart(const QuietStart&) = delete;
    QuietStart& operator=(const QuietStart&) = delete;

private:
    static QLoggingCategory* category() { return QLoggingCategory::defaultCategory(); }
    bool warned_;
};

} // namespace

class EngineModule : public QObject, public WebEngineModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.korvane.velmora.WebEngineModule/1")
    Q_INTERFACES(velmora::WebEngineModule)
public:
    std::unique_ptr<WebEngine> makeEngine(WebEngineListener& listener, QWidget* parent) override {
        const QuietStart quiet;
        if (!started_) {
            // Pages of text and a few pictures need no graphics hardware.
            QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
            started_ = true;
        }
        return std::make_unique<PageEngine>(listener, parent);
    }

private:
    bool started_ = false;
};

} // namespace velmora

#include "module.moc"
