#include "alert.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace velmora {

namespace {

/** A message box whose buttons are pressed by their shortcuts with the modifier only. The plain box takes the
   letter alone for the shortcut, which may come from a user who was still typing when the question came. */
class SheetBox : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool hasModifier =
            event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
        if (hasModifier || event->matches(QKeySequence::Cancel)) {
            QMessageBox::keyPressEvent(event);
        } else {
            QDialog::keyPressEvent(event);
        }
    }
};

/** Names with "<" in them are names, not markup; the informative text needs its own setting. */
void setPlainTexts(QMessageBox& box, const QString& text, const QString& informativeText) {
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(informativeText);
    if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
}

int returnCode(const QMessageBox& box) {
    // buttons() sorts by role; the order of adding is kept as a property.
    const QAbstractButton* clicked = box.clickedButton();
    if (!clicked && box.result() == QDialog::Rejected) {
        // Closed by the window's own means, which the box tells of before it takes that for its escape
        // button.
        clicked = box.escapeButton();
    }
    const QVariant order = clicked ? clicked->property("orderOfAdding") : QVariant();
    return order.isValid() ? Alert::firstButtonReturn + order.toInt() : Alert::noButtonReturn;
}

} // namespace

Alert::Alert() : box_(new SheetBox) {
    box_->setIcon(QMessageBox::Warning);
}

Alert::~Alert() {
    if (box_) {
        box_->disconnect();
        box_->deleteLater();
        box_->hide();
    }
}

void Alert::setMessageText(const QString& text) {
    setPlainTexts(*box_, text, box_->informativeText());
}

void Alert::setInformativeText(const QString& text) {
    setPlainTexts(*box_, box_->text(), text);
}

void Alert::addButton(const QString& title, const QKeySequence& keyEquivalent) {
    const bool isDefault = keyEquivalent == QKeySequence(Qt::Key_Return);
    const bool isEscape = keyEquivalent == QKeySequence(Qt::Key_Escape);
    const int order = static_cast<int>(box_->buttons().size());
    QPushButton* button = box_->addButton(title, isDefault  ? QMessageBox::AcceptRole
                                                 : isEscape ? QMessageBox::RejectRole
                                                            : QMessageBox::DestructiveRole);
    button->setProperty("orderOfAdding", order);
    if (isDefault) {
        box_->setDefaultButton(button);
    } else if (isEscape) {
        box_->setEscapeButton(button);
        if (!box_->defaultButton()) {
            box_->setDefaultButton(button);
        }
    } else {
        button->setShortcut(keyEquivalent); // after the text, which would drop it
    }
}

void Alert::beginSheetModalForWindow(QWidget* window, std::function<void(int returnCode)> didEnd) {
    box_->setParent(window, Qt::Sheet | Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    box_->setWindowModality(Qt::WindowModal);
    if (window) {
        box_->setWindowTitle(window->windowTitle());
    }
    // No button has the keyboard, or a blank in a text that somebody is typing would press it.
    box_->setFocusPolicy(Qt::StrongFocus);
    box_->setFocus();
    QMessageBox* box = box_;
    QObject::connect(box, &QMessageBox::finished, box,
                     [box, end = std::move(didEnd)] { end(returnCode(*box)); });
    box_->open();
}

void presentErrorSheet(const Error& error, QWidget* window) {
    auto* box = new SheetBox(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Critical);
    box->setStandardButtons(QMessageBox::Ok);
    setPlainTexts(*box, error.userInfo.value(NSLocalizedDescriptionKey).toString(),
                  error.userInfo.value(NSLocalizedRecoverySuggestionErrorKey).toString());
    box->setWindowModality(Qt::WindowModal);
    if (window) {
        box->setWindowTitle(window->windowTitle());
    }
    box->open();
}

} // namespace velmora
