#pragma once

#include <QDateTimeEdit>

namespace velmora {

/** A date and time that the Tab key enters and leaves in one step; the arrow keys go to and fro inside it. */
class DateField : public QDateTimeEdit {
    Q_OBJECT
public:
    using QDateTimeEdit::QDateTimeEdit;

protected:
    bool focusNextPrevChild(bool next) override {
        // Past the sections, each of which would take a step of its own.
        return QAbstractSpinBox::focusNextPrevChild(next);
    }
};

} // namespace velmora
