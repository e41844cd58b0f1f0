#include "page_engine.h"

#include <QLoggingCategory>
#include <QObject>
#include <QQuickWindow>

namespace velmora {

namespace {

/** Silences the engine's remark, while it starts, that it found no graphics hardware to draw with. */
class QuietStart {
public:
    QuietStart() : warned_(category()->isEnabled(QtWarningMsg)) {
        category()->setEnabled(QtWarningMsg, false);
    }
    ~QuietStart() { category()->setEnabled(QtWarningMsg, warned_); }
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
        // Pages of text and a few pictures need no graphics hardware, and its drivers would take part of the
        // window.
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        const QuietStart quiet;
        return std::make_unique<PageEngine>(listener, parent);
    }
};

} // namespace velmora

#include "module.moc"
