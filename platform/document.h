#pragma once

#include "platform/error.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <QWidget>

#include <optional>

namespace velmora {

/** A document: what one window edits, whether it has changes, and the window that its sheets belong to. */
class Document : public QObject {
    Q_OBJECT
public:
    enum class ChangeType { Done, Cleared };

    using QObject::QObject;

    /** Counts a change, or forgets all of them. */
    void updateChangeCount(ChangeType change);
    /** The changes counted since the last time they were cleared. Nothing in the program calls it. */
    [[nodiscard]] int changeCount() const { return changeCount_; }
    /** Whether changes were counted since the last time they were cleared. */
    [[nodiscard]] virtual bool isDocumentEdited() const;

    /** The window's title. */
    [[nodiscard]] virtual QString displayName() const = 0;

    /** Opens the file at URL in place of the current one, or closes the current one when there is no URL.
       Returns whether that was done. On failure ERROR (may be null) is filled; a false with ERROR untouched
       means that the user cancelled. */
    virtual bool readFromURL(const std::optional<QUrl>& url, const QString& type, Error* error) = 0;

    /** The window that sheets are shown on; null before there is one. */
    [[nodiscard]] QWidget* windowForSheet() const { return window_; }
    void setWindow(QWidget* window) { window_ = window; }

private:
    int changeCount_ = 0;
    QPointer<QWidget> window_;
};

} // namespace velmora
