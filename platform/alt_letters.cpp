#include "alt_letters.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>

namespace velmora {
namespace {

class AltLetterFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return QObject::eventFilter(watched, event);
        }
        const auto& key = static_cast<const QKeyEvent&>(*event);
        // Together with Control, Alt may stand for the key that gives a letter key its third character.
        const bool isAltAlone =
            (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::AltModifier;
        if (!isAltAlone || key.text().isEmpty() || !key.text().at(0).isPrint()) {
            return false;
        }
        event->ignore();
        return true;
    }
};

} // namespace

void keepAltLettersFromTyping(QWidget& window) {
    auto* filter = new AltLetterFilter(&window);
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (qobject_cast<QLineEdit*>(control) || qobject_cast<QPlainTextEdit*>(control) ||
            qobject_cast<QComboBox*>(control) || qobject_cast<QAbstractSpinBox*>(control)) {
            control->installEventFilter(filter);
        }
    }
}

void giveAltLetter(QWidget& control, const QString& keys) {
    const QKeySequence sequence = QKeySequence::fromString(keys);
    if (auto* const button = qobject_cast<QAbstractButton*>(&control)) {
        button->setShortcut(sequence);
    } else {
        const auto* const shortcut = new QShortcut(sequence, &control);
        QObject::connect(shortcut, &QShortcut::activated, &control,
                         [&control] { control.setFocus(Qt::ShortcutFocusReason); });
    }
    control.setToolTip(control.toolTip() + QStringLiteral(" (") + sequence.toString() + QLatin1Char(')'));
}

} // namespace velmora
