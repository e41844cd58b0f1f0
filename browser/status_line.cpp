#include "status_line.h"

#include "save_end.h"
#include "search_summary.h"

#include "platform/elided_label.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/sentences.h"

#include <QAccessible>
#include <QLocale>
#include <QTime>

namespace velmora {

namespace {

constexpr int windowMargin = 8; // as the forms above it keep

/** TEXT with the time of day. */
QString withTime(const QString& text) {
    return text + QStringLiteral(" (") + QLocale().toString(QTime::currentTime(), QLocale::ShortFormat) +
           QLatin1Char(')');
}

ElidedLabel* newLabel(const char* name, const QString& toolTip) {
    auto* const label = new ElidedLabel;
    label->setObjectName(QLatin1String(name));
    label->setToolTip(toolTip);
    return label;
}

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent), save_(newLabel("lbl_saveStatus", localised("What the last save did"))),
      search_(newLabel("lbl_searchStatus", localised("What the last search found"))) {
    search_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    addWidget(save_, 3);
    addWidget(search_, 2);
    setSizeGripEnabled(false);
    setContentsMargins(windowMargin, 0, windowMargin, 0);
}

void StatusLine::tellSave(const SaveEnd& end) {
    const QString name = lastPathComponent(end.path);
    const QString done =
        end.removal ? localised("Deleted all tags of \"%@\"", name) : localised("Saved \"%@\"", name);
    const QString failed =
        end.removal ? localised("\"%@\" keeps its tags.", name) : localised("\"%@\" was not saved.", name);
    const QString text = end.saved ? done : joinedSentences({failed, end.obstacle.reason});
    say(*save_, withTime(text));
    save_->setToolTip(end.path);
}

void StatusLine::tellSearch(const SearchSummary& summary) {
    QString text = localised("Files found: %@", QLocale().toString(summary.filesFound));
    if (summary.unreadFolders > 0) {
        text += QStringLiteral("; ") +
                localised("folders that could not be read: %@", QLocale().toString(summary.unreadFolders));
    }
    say(*search_, text);
}

void StatusLine::say(ElidedLabel& label, const QString& text) {
    label.setText(text);
    label.setAccessibleName(text);
    QAccessibleEvent event(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace velmora
