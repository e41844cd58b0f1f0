#include "window_inspection.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTest>

namespace velmora::test {

namespace {

/** Those of WINDOW itself, and not of windows that belong to it. */
template <class Widget>
QList<Widget*> seenIn(const QWidget& window) {
    QList<Widget*> all = window.findChildren<Widget*>();
    all.removeIf([&](const QWidget* part) { return part->window() != &window || !part->isVisible(); });
    return all;
}

QString called(const QWidget& control) {
    return control.objectName() + u' ' + QLatin1String(control.metaObject()->className());
}

/** The controls that a user goes to, and not the parts that these consist of. */
QList<QWidget*> controls(const QWidget& window) {
    QList<QWidget*> all = seenIn<QWidget>(window);
    all.removeIf([](const QWidget* control) {
        const QWidget* const around = control->parentWidget();
        const bool isPart = qobject_cast<const QComboBox*>(around) ||
                            qobject_cast<const QAbstractItemView*>(around) ||
                            around->inherits("QAbstractScrollArea");
        return isPart || !(control->focusPolicy() & Qt::TabFocus) || control->focusProxy();
    });
    return all;
}

QStringList cutHeaders(const QHeaderView& header) {
    QStringList cut;
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, header.orientation()).toString();
        if (!header.isSectionHidden(section) &&
            header.sectionSize(section) < header.fontMetrics().horizontalAdvance(text) + 8) {
            cut += text;
        }
    }
    return cut;
}

} // namespace

QStringList cutTexts(const QWidget& window) {
    QStringList cut;
    for (const auto* button : seenIn<QPushButton>(window)) {
        if (button->width() < button->minimumSizeHint().width()) {
            cut += button->text();
        }
    }
    for (const auto* label : seenIn<QLabel>(window)) {
        const bool giveWay = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        const bool isCut = label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                                             : !giveWay && label->width() < label->sizeHint().width();
        cut += isCut ? QStringList(label->text()) : QStringList();
    }
    for (const auto* header : seenIn<QHeaderView>(window)) {
        cut += cutHeaders(*header);
    }
    return cut;
}

QStringList controlsOutside(const QWidget& window) {
    QStringList outside;
    for (const auto* control : seenIn<QWidget>(window)) {
        if (!qobject_cast<const QAbstractButton*>(control) && !qobject_cast<const QLabel*>(control)) {
            continue;
        }
        const QRect place(control->mapTo(&window, QPoint()), control->size());
        const QWidget* area = control->parentWidget();
        while (area != &window && !qobject_cast<const QScrollArea*>(area->parentWidget())) {
            area = area->parentWidget();
        }
        const QRect room(area->mapTo(&window, QPoint()), area->size());
        const bool isScrolled = area != &window;
        if (isScrolled ? place.left() < room.left() || place.right() > room.right()
                       : !window.rect().contains(place)) {
            outside += called(*control);
        }
    }
    return outside;
}

QStringList altLetters(const QWidget& window) {
    QStringList all;
    const auto add = [&all](const QKeySequence& keys) {
        if (keys.count() == 1 && keys[0].keyboardModifiers() == Qt::AltModifier) {
            all += keys.toString();
        }
    };
    const auto isOfWindow = [&window](const QWidget* part) { return part && part->window() == &window; };
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        add(isOfWindow(button) ? button->shortcut() : QKeySequence());
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        add(isOfWindow(label) && label->buddy() ? QKeySequence::mnemonic(label->text()) : QKeySequence());
    }
    for (const auto* shortcut : window.findChildren<QShortcut*>()) {
        add(isOfWindow(qobject_cast<QWidget*>(shortcut->parent())) ? shortcut->key() : QKeySequence());
    }
    if (const auto* main = qobject_cast<const QMainWindow*>(&window); main && main->menuWidget()) {
        for (const QAction* menu : main->menuWidget()->actions()) {
            add(QKeySequence::mnemonic(menu->text()));
        }
    }
    return all;
}

QStringList wrongMenuLetters(const QWidget& window) {
    QStringList wrong;
    const auto* const bar = window.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QAction* title : bar->actions()) {
        QStringList letters;
        for (const QAction* command : title->menu()->actions()) {
            const QKeySequence letter = QKeySequence::mnemonic(command->text());
            if (letter.isEmpty() && !command->isSeparator()) {
                wrong += command->text() + QStringLiteral(" has none");
            }
            letters += letter.isEmpty() ? QStringList() : QStringList(letter.toString());
        }
        for (const QString& twice : givenTwice(letters)) {
            wrong += title->text() + u' ' + twice;
        }
    }
    return wrong;
}

QStringList givenTwice(QStringList all) {
    QStringList twice;
    all.sort();
    for (qsizetype i = 1; i < all.size(); ++i) {
        if (all[i] == all[i - 1]) {
            twice += all[i];
        }
    }
    return twice;
}

QStringList namelessControls(const QWidget& window) {
    QStringList nameless;
    for (const QWidget* control : controls(window)) {
        const auto* const button = qobject_cast<const QAbstractButton*>(control);
        if (control->accessibleName().isEmpty() && (!button || button->text().isEmpty())) {
            nameless += called(*control) + QStringLiteral(" has no name");
        }
        if (control->toolTip().isEmpty()) {
            nameless += called(*control) + QStringLiteral(" has no tip");
        }
    }
    return nameless;
}

QStringList controlsBeyondTab(const QWidget& window) {
    QList<QWidget*> left = controls(window);
    left.removeIf([](const QWidget* control) { return !control->isEnabled(); });
    const qsizetype most = 3 * left.size();
    for (qsizetype presses = 0; presses < most && !left.isEmpty() && QApplication::focusWidget(); ++presses) {
        left.removeAll(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QStringList names;
    for (const QWidget* control : left) {
        names += called(*control);
    }
    return names;
}

} // namespace velmora::test
