#pragma once

#include <QStatusBar>

namespace velmora {

class ElidedLabel;
struct SaveEnd;
struct SearchSummary;

/** The line at the window's foot: what the last save did, and what the last search came to. Assistive
   technologies are told of each as it comes; the notice above the form has what can be done about it. */
class StatusLine : public QStatusBar {
    Q_OBJECT
public:
    explicit StatusLine(QWidget* parent = nullptr);

    /** A save has ended. */
    void tellSave(const SaveEnd& end);
    /** A search has ended. */
    void tellSearch(const SearchSummary& summary);

private:
    void say(ElidedLabel& label, const QString& text);

    ElidedLabel* const save_;
    ElidedLabel* const search_;
};

} // namespace velmora
