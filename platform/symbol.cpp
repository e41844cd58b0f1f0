#include "symbol.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

static void makeSymbolsKnown() {
    Q_INIT_RESOURCE(symbols);
}

namespace velmora {
namespace {

/** Draws a symbol anew each time, so that it follows the palette. */
class SymbolEngine : public QIconEngine {
public:
    explicit SymbolEngine(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        painter->drawPixmap(rect, pixmap(rect.size() * painter->device()->devicePixelRatioF(), mode, state));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        return drawnSymbol(name_, qMin(size.width(), size.height()),
                           QGuiApplication::palette().color(group, role));
    }
    [[nodiscard]] QIconEngine* clone() const override { return new SymbolEngine(name_); }
    bool isNull() override { return false; }

private:
    QString name_;
};

} // namespace

QPixmap drawnSymbol(const QString& name, int side, const QColor& colour) {
    makeSymbolsKnown();
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QIcon(QStringLiteral(":/symbols/%1.svg").arg(name)).paint(&painter, picture.rect());
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), colour);
    return picture;
}

QIcon symbol(const QString& name) {
    return QIcon::hasThemeIcon(name) ? QIcon::fromTheme(name) : QIcon(new SymbolEngine(name));
}

} // namespace velmora
