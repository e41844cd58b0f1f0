#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QList>

namespace velmora {

/** A key, and what it does. */
struct KeyUse {
    QString keys; ///< as the user's keyboard and language name them
    QString use;
};

/** Every key of WINDOW: of its menus, of its controls' letters, and those that belong to single controls.
   Taken from the window itself where the window knows, so that no key is missing. */
[[nodiscard]] QList<KeyUse> keysOf(const QWidget& window);

/** The list of all keys, in a window of its own; Escape closes it. */
class KeyboardWindow : public QDialog {
    Q_OBJECT
public:
    explicit KeyboardWindow(const QList<KeyUse>& keys, QWidget* parent = nullptr);
};

} // namespace velmora
