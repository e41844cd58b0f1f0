#pragma once

#include <QDialog>

namespace velmora {

/** What the program is: its version, its licence, and what it is built on. Texts that can be selected and
   copied; Escape closes it. */
class AboutWindow : public QDialog {
    Q_OBJECT
public:
    explicit AboutWindow(QWidget* parent = nullptr);
};

} // namespace velmora
