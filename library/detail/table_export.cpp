#include "table_export.h"

#include "cell_block.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace velmora {

namespace {

/** Rows are collected up to that many bytes before they are written. */
constexpr qsizetype pieceSize = 65536;

/** TEXT without the halves of surrogate pairs that stand for bytes of a name. */
QString validText(const QString& text) {
    return text.isValidUtf16() ? text : QString::fromUtf8(text.toUtf8());
}

QByteArray csvCell(const QVariant& value) {
    const bool number = value.typeId() != QMetaType::QString;
    QString text = number ? value.toString() : withoutFormula(validText(value.toString()));
    const bool quoted = std::any_of(text.begin(), text.end(),
                                    [](QChar unit) { return QStringView(u",\"\r\n").contains(unit); });
    return (quoted ? u'"' + text.replace(u'"', u"\"\""_qs) + u'"' : text).toUtf8();
}

/** Writes what collects, in pieces. */
class PieceWriter {
public:
    explicit PieceWriter(QIODevice& device) : device_(device) {}

    void append(const QByteArray& bytes) {
        piece_ += bytes;
        if (piece_.size() >= pieceSize) {
            flush();
        }
    }
    /** Whether all has been written. */
    [[nodiscard]] bool finish() {
        flush();
        return sound_;
    }

private:
    void flush() {
        sound_ = sound_ && device_.write(piece_) == piece_.size();
        piece_.clear();
    }

    QIODevice& device_;
    QByteArray piece_;
    bool sound_ = true;
};

} // namespace

bool exportCsv(const ExportTable& table, QIODevice& device) {
    PieceWriter writer(device);
    writer.append("\xEF\xBB\xBF");
    const int columns = static_cast<int>(table.columns.size());
    const auto line = [&](const std::function<QVariant(int column)>& cell) {
        for (int column = 0; column < columns; ++column) {
            writer.append(column == 0 ? QByteArray() : QByteArray(","));
            writer.append(csvCell(cell(column)));
        }
        writer.append("\r\n");
    };
    line([&table](int column) { return QVariant(table.columns[static_cast<std::size_t>(column)].title); });
    for (int row = 0; row < table.rows; ++row) {
        line([&table, row](int column) { return table.cell(row, column); });
    }
    return writer.finish();
}

bool exportJson(const ExportTable& table, QIODevice& device) {
    PieceWriter writer(device);
    writer.append("[");
    for (int row = 0; row < table.rows; ++row) {
        QJsonObject members;
        for (int column = 0; column < static_cast<int>(table.columns.size()); ++column) {
            const QVariant value = table.cell(row, column);
            const bool text = value.typeId() == QMetaType::QString;
            members.insert(table.columns[static_cast<std::size_t>(column)].key,
                           text ? QJsonValue(validText(value.toString())) : QJsonValue::fromVariant(value));
        }
        writer.append(row == 0 ? "\n" : ",\n");
        writer.append(QJsonDocument(members).toJson(QJsonDocument::Compact));
    }
    writer.append(table.rows == 0 ? "]\n" : "\n]\n");
    return writer.finish();
}

} // namespace velmora
