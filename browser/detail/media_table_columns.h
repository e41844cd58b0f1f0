#pragma once

#include <QObject>
#include <QStringList>

class QTableView;

namespace velmora {

/** How the media table's columns are drawn, and their widths: each shows its longest text, the date's in the
   form of the process's locale as it is when this object is made. The name gets the room that the others
   leave; while the table is too narrow for all, the date gives its room up, and then the size. Once a user
   has set a width, that and the other widths are the user's. */
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
    QStringList dateForms_;
    bool fitting_ = false;
    bool setByPerson_ = false;
};

} // namespace velmora
