#include "media_table_columns.h"

#include "browser/media_table_model.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>

namespace velmora {
namespace {

constexpr int iconWidth = 28;
constexpr int smallestWidth = 24;

// In average characters; a name of twelve takes some fifteen of them.
constexpr int nameLength = 15;
constexpr int sizeLength = 12;
constexpr int dateLength = 24;

} // namespace

MediaTableColumns::MediaTableColumns(QTableView& view, QObject* parent) : QObject(parent), view_(view) {
    // No column follows its contents: the table is reloaded for each file that a search finds.
    QHeaderView& header = *view_.horizontalHeader();
    header.setMinimumSectionSize(smallestWidth);
    const int icon = MediaTableModel::columnIndex(u"icon");
    header.setSectionResizeMode(icon, QHeaderView::Fixed);
    header.resizeSection(icon, iconWidth);
    const int name = MediaTableModel::columnIndex(u"filename");
    header.setSectionResizeMode(name, QHeaderView::Stretch);
    fit();
    connect(&header, &QHeaderView::sectionResized, this, [this, name](int column) {
        // The name's width changes with the table's.
        setByPerson_ = setByPerson_ || (!fitting_ && column != name);
    });
    view_.viewport()->installEventFilter(this);
}

void MediaTableColumns::fit() {
    const QScopedValueRollback<bool> fitting(fitting_, true);
    const int character = view_.fontMetrics().averageCharWidth();
    const int room = view_.viewport()->width() - iconWidth - nameLength * character;
    const auto fitColumn = [&](QStringView identifier, int length, int columnRoom) {
        const int width = std::min(length * character, std::max(columnRoom, smallestWidth));
        view_.horizontalHeader()->resizeSection(MediaTableModel::columnIndex(identifier), width);
        return width;
    };
    const int sizeWidth = fitColumn(u"filesize", sizeLength, room - smallestWidth);
    fitColumn(u"created", dateLength, room - sizeWidth);
}

bool MediaTableColumns::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && !setByPerson_) {
        fit();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace velmora
