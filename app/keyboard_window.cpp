#include "keyboard_window.h"

#include "platform/accessibility.h"
#include "platform/localisation.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace velmora {
namespace {

QString nativeText(const QKeySequence& keys) {
    return keys.toString(QKeySequence::NativeText);
}

/** What a command is called, without its letter and the dots of a question to come. */
QString plain(const QString& text) {
    QString name = plainCaption(text);
    while (name.endsWith(u'…') || name.endsWith(u':')) {
        name.chop(1);
    }
    return name;
}

void addMenuKeys(const QMenu& menu, QList<KeyUse>& keys) {
    for (const QAction* command : menu.actions()) {
        if (command->menu()) {
            addMenuKeys(*command->menu(), keys);
        }
        for (const QKeySequence& shortcut : command->shortcuts()) {
            keys += {nativeText(shortcut), plain(command->text())};
        }
    }
}

void addMenus(const QWidget& window, QList<KeyUse>& keys) {
    const auto* const bar = window.findChild<QMenuBar*>();
    const QList<QAction*> titles = bar ? bar->actions() : QList<QAction*>();
    for (const QAction* title : titles) {
        addMenuKeys(*title->menu(), keys);
    }
    for (const QAction* title : titles) {
        if (const QKeySequence letter = QKeySequence::mnemonic(title->text()); !letter.isEmpty()) {
            keys += {nativeText(letter), localised("%@ menu", plain(title->text()))};
        }
    }
}

void addControls(const QWidget& window, QList<KeyUse>& keys) {
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const auto* const button = qobject_cast<const QAbstractButton*>(control);
        const auto* const label = qobject_cast<const QLabel*>(control);
        if (control->window() != &window) {
            continue; // of a window that belongs to this one
        }
        if (button && !button->shortcut().isEmpty()) {
            keys += {nativeText(button->shortcut()), button->accessibleName()};
        } else if (label && label->buddy() && !QKeySequence::mnemonic(label->text()).isEmpty()) {
            keys += {nativeText(QKeySequence::mnemonic(label->text())), label->buddy()->accessibleName()};
        }
    }
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
        const auto* const control = qobject_cast<const QWidget*>(shortcut->parent());
        if (control && control->window() == &window &&
            shortcut->key()[0].keyboardModifiers() == Qt::AltModifier) {
            keys += {nativeText(shortcut->key()), control->accessibleName()};
        }
    }
}

/** The keys that controls take themselves. */
void addOthers(QList<KeyUse>& keys) {
    const auto add = [&keys](const QString& text, const char* use) { keys += {text, localised(use)}; };
    const auto both = [](Qt::Key first, Qt::Key second) {
        return nativeText(first) + QStringLiteral(", ") + nativeText(second);
    };
    add(localised("Letters, in the list"),
        QT_TRANSLATE_NOOP("Velmora", "The next name that begins with them"));
    add(both(Qt::Key_Up, Qt::Key_Down), QT_TRANSLATE_NOOP("Velmora", "In the list: the file above, below"));
    add(nativeText(QKeySequence::Cut), QT_TRANSLATE_NOOP("Velmora", "On the cover: cut it"));
    add(nativeText(QKeySequence::Copy), QT_TRANSLATE_NOOP("Velmora", "On the cover: copy it"));
    add(nativeText(QKeySequence::Paste), QT_TRANSLATE_NOOP("Velmora", "On the cover: paste one"));
    add(nativeText(Qt::Key_Tab), QT_TRANSLATE_NOOP("Velmora", "The next control"));
    add(nativeText(Qt::SHIFT | Qt::Key_Tab), QT_TRANSLATE_NOOP("Velmora", "The control before"));
    add(nativeText(Qt::Key_F10), QT_TRANSLATE_NOOP("Velmora", "The menus"));
    add(nativeText(Qt::Key_F6), QT_TRANSLATE_NOOP("Velmora", "The buttons of the line above the form"));
    add(nativeText(Qt::Key_Escape),
        QT_TRANSLATE_NOOP("Velmora", "Ends the wait for a page or a cover; closes the line above the form"));
}

QTableWidget* newTable(const QList<KeyUse>& keys) {
    auto* const table = new QTableWidget(static_cast<int>(keys.size()), 2);
    table->setObjectName(QStringLiteral("tbl_keys"));
    table->setHorizontalHeaderLabels({localised("Key"), localised("What it does")});
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(keys[row].keys));
        table->setItem(row, 1, new QTableWidgetItem(keys[row].use));
    }
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    table->resizeColumnsToContents();
    table->setAccessibleName(localised("Keyboard"));
    table->setToolTip(localised("Every key and what it does"));
    table->setCurrentCell(0, 0);
    return table;
}

} // namespace

QList<KeyUse> keysOf(const QWidget& window) {
    QList<KeyUse> keys;
    addMenus(window, keys);
    addControls(window, keys);
    addOthers(keys);
    return keys;
}

KeyboardWindow::KeyboardWindow(const QList<KeyUse>& keys, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("window_keyboard"));
    setWindowTitle(localised("Keyboard"));
    auto* const layout = new QVBoxLayout(this);
    auto* const table = newTable(keys);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setToolTip(localised("Close this window"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(table);
    layout->addWidget(buttons);
    nameControlsByCaptions(*this);
    resize(620, 560);
    table->setFocus();
}

} // namespace velmora
