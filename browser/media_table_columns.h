#pragma once

#include <QObject>

class QTableView;

namespace velmora {

/** The widths of the media table's columns. The name gets the room that the others leave; while the table is
   too narrow for all, the date gives its room up, and then the size. Once a person has set a width, that and
   the other widths are the person's. */
class MediaTableColumns : public QObject {
    Q_OBJECT
public:
    /** VIEW shows the model's columns already. */
    MediaTableColumns(QTableView& view, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();

    QTableView& view_;
    bool fitting_ = false;
    bool setByPerson_ = false;
};

} // namespace velmora
