#pragma once

#include "platform/error.h"

#include <QKeySequence>
#include <QPointer>
#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

namespace velmora {

/** A question or a message, shown as a sheet on a window. All its texts are plain text. */
class Alert {
public:
    /** Codes of the buttons, in the order of adding. */
    static constexpr int firstButtonReturn = 1000;
    static constexpr int secondButtonReturn = 1001;
    static constexpr int thirdButtonReturn = 1002;
    /** The code of a sheet that went away without a button. */
    static constexpr int noButtonReturn = 0;

    Alert();
    /** Takes the sheet away if it is still there; its end is not called then. */
    ~Alert();
    Alert(const Alert&) = delete;
    Alert& operator=(const Alert&) = delete;

    void setMessageText(const QString& text);
    void setInformativeText(const QString& text);
    /** Return makes the button the default one, Escape the one that dismissing the sheet stands for, by that
       key or by closing its window, and the default one where no other is; any other key is its
       shortcut. */
    void addButton(const QString& title, const QKeySequence& keyEquivalent);

    /** Shows the sheet and returns at once; DID_END gets the code of the button. */
    void beginSheetModalForWindow(QWidget* window, std::function<void(int returnCode)> didEnd);

private:
    QPointer<QMessageBox> box_;
};

/** Shows ERROR's description and suggestion as a sheet with one button and returns at once. */
void presentErrorSheet(const Error& error, QWidget* window);

} // namespace velmora
