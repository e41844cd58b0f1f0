#include "media_table_columns.h"

#include "browser/media_row.h"
#include "browser/media_table_model.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QTableView>

#include <algorithm>
#include <cstdint>

namespace velmora {
namespace {

constexpr int iconWidth = 28;
constexpr int smallestWidth = 24;

/** On each side of a cell's text, so that texts of neighbouring columns don't touch. */
constexpr int air = 5;

// In average characters; a name of twelve takes some fifteen of them.
constexpr int nameLength = 15;
const auto longestSize = QStringLiteral("1024.0 KB");

/** Draws cells with air around their texts. Names, which differ at both ends, lose their middle when they are
   too long; of a size or date the beginning is what matters. */
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        if (isColumn(index, u"icon")) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        // The ground goes from edge to edge.
        QStyleOptionViewItem ground = option;
        initStyleOption(&ground, index);
        option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &ground, painter, option.widget);
        QStyleOptionViewItem cell = option;
        cell.rect.adjust(air, 0, -air, 0);
        QStyledItemDelegate::paint(painter, cell, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = isColumn(index, u"filename") ? Qt::ElideMiddle : Qt::ElideRight;
    }

private:
    static bool isColumn(const QModelIndex& index, QStringView identifier) {
        return index.column() == MediaTableModel::columnIndex(identifier);
    }
};

/** All forms that dates of the process's locale take: each month, day of the week and half of the day. Every
   digit is a nought. */
QStringList formsOfDates() {
    constexpr std::int64_t day = 24L * 60 * 60;
    constexpr std::int64_t start = 1766188800; // 20 December 2025; from there in steps of about a month
    QStringList forms;
    for (std::int64_t month = 0; month < 12; ++month) {
        for (std::int64_t weekday = 0; weekday < 7; ++weekday) {
            for (const std::int64_t halfDay : {std::int64_t(0), day / 2}) {
                QString text = createdText({start + month * 30 * day + weekday * day + halfDay, 0});
                std::replace_if(
                    text.begin(), text.end(), [](QChar c) { return c.isDigit(); }, u'0');
                forms += text;
            }
        }
    }
    forms.removeDuplicates();
    return forms;
}

int widestDigitsWidth(const QFontMetrics& metrics) {
    int width = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
        width = std::max(width, metrics.horizontalAdvance(QChar(digit)));
    }
    return width;
}

int longestDateWidth(const QStringList& forms, const QFontMetrics& metrics) {
    const int moreForADigit = widestDigitsWidth(metrics) - metrics.horizontalAdvance(u'0');
    int width = 0;
    for (const QString& form : forms) {
        const auto digits = static_cast<int>(form.count(u'0'));
        width = std::max(width, metrics.horizontalAdvance(form) + digits * moreForADigit);
    }
    return width;
}

} // namespace

MediaTableColumns::MediaTableColumns(QTableView& view, QObject* parent)
    : QObject(parent), view_(view), dateForms_(formsOfDates()) {
    // No column follows its contents: the table is reloaded for each file that a search finds.
    QHeaderView& header = *view_.horizontalHeader();
    header.setMinimumSectionSize(smallestWidth);
    view_.setItemDelegate(new CellDelegate(this));
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
    const QFontMetrics metrics = view_.fontMetrics();
    QFont ofOpenFile = view_.font();
    ofOpenFile.setBold(true);
    const QFontMetrics boldMetrics(ofOpenFile);
    const int nameWidth = nameLength * metrics.averageCharWidth() + 2 * air;
    const int room = view_.viewport()->width() - iconWidth - nameWidth;
    // What the style leaves free in a cell, and the air; and a pixel, as a text that is too wide by a part of
    // one is elided.
    const int margins =
        2 * (view_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view_) + 1 + air) + 1;
    const auto fitColumn = [&](QStringView identifier, int textWidth, int columnRoom) {
        const int width = std::min(textWidth + margins, std::max(columnRoom, smallestWidth));
        view_.horizontalHeader()->resizeSection(MediaTableModel::columnIndex(identifier), width);
        return width;
    };
    const int sizeWidth =
        fitColumn(u"filesize", boldMetrics.horizontalAdvance(longestSize), room - smallestWidth);
    fitColumn(u"created", longestDateWidth(dateForms_, boldMetrics), room - sizeWidth);
}

bool MediaTableColumns::eventFilter(QObject* watched, QEvent* event) {
    const bool changesWidths = event->type() == QEvent::Resize || event->type() == QEvent::FontChange ||
                               event->type() == QEvent::StyleChange;
    if (changesWidths && !setByPerson_) {
        fit();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace velmora
