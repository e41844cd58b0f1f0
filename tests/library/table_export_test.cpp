#include "library/detail/table_export.h"

#include "platform/file_path.h"

#include <QBuffer>

#include <gmock/gmock.h>

namespace velmora {
namespace {

/** A table of one column for each of CELLS, in one row. */
ExportTable oneRow(const QVariantList& cells) {
    ExportTable table;
    for (qsizetype column = 0; column < cells.size(); ++column) {
        table.columns.push_back({QString("key%1").arg(column), QString("Title %1").arg(column)});
    }
    table.rows = 1;
    table.cell = [cells](int, int column) { return cells[column]; };
    return table;
}

QByteArray csvOf(const ExportTable& table) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(exportCsv(table, buffer));
    return buffer.data();
}
QByteArray jsonOf(const ExportTable& table) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(exportJson(table, buffer));
    return buffer.data();
}

TEST(ExportCsv, HasTitlesAndARowALine) {
    ExportTable table = oneRow({"a", 1976, QVariant(), "é"});
    table.rows = 2;
    EXPECT_EQ("\xEF\xBB\xBFTitle 0,Title 1,Title 2,Title 3\r\na,1976,,é\r\na,1976,,é\r\n", csvOf(table));
}

TEST(ExportCsv, WhatWouldDivideIsQuoted) {
    EXPECT_EQ(
        "\xEF\xBB\xBFTitle 0,Title 1,Title 2,Title 3\r\n\"a,b\",\"say \"\"so\"\"\",\"one\ntwo\",a\tb\r\n",
        csvOf(oneRow({"a,b", "say \"so\"", "one\ntwo", "a\tb"})));
}

TEST(ExportCsv, FormulasAreHarmlessAndNumbersAreNumbers) {
    EXPECT_EQ("\xEF\xBB\xBFTitle 0,Title 1,Title 2,Title 3\r\n'=1+1,'@x,-5,-5\r\n",
              csvOf(oneRow({"=1+1", "@x", -5, "-5"})));
}

TEST(ExportCsv, BytesThatAreNoTextAreMarked) {
    EXPECT_EQ("\xEF\xBB\xBFTitle 0\r\ncaf?\r\n", csvOf(oneRow({pathFromBytes("caf\xe9")})));
}

TEST(ExportJson, HasAnObjectARow) {
    ExportTable table = oneRow({"a", 1976, QVariant(), true});
    table.rows = 2;
    const QByteArray row = R"({"key0":"a","key1":1976,"key2":null,"key3":true})";
    EXPECT_EQ("[\n" + row + ",\n" + row + "\n]\n", jsonOf(table));
}

TEST(ExportJson, TextsAreExact) {
    EXPECT_EQ("[\n{\"key0\":\"=1\",\"key1\":\"say \\\"so\\\"\\né\"}\n]\n",
              jsonOf(oneRow({"=1", "say \"so\"\né"})));
}

TEST(ExportJson, LargeNumbersAreExact) {
    EXPECT_EQ("[\n{\"key0\":9007199254740991}\n]\n", jsonOf(oneRow({QVariant(qlonglong{9007199254740991})})));
}

TEST(ExportJson, NoRowIsAnEmptyArray) {
    ExportTable table = oneRow({"a"});
    table.rows = 0;
    EXPECT_EQ("[]\n", jsonOf(table));
}

/** A device that takes so many bytes and no more. */
class FullDevice : public QIODevice {
public:
    explicit FullDevice(qint64 room) : room_(room) { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override {
        const qint64 taken = std::min(size, room_);
        room_ -= taken;
        return taken == 0 && size > 0 ? -1 : taken;
    }

private:
    qint64 room_;
};

TEST(Export, AFullDiskIsTold) {
    ExportTable table = oneRow({QString(100000, 'a')});
    table.rows = 10;
    for (const qint64 room : {0, 10, 500000}) {
        FullDevice csv(room);
        EXPECT_FALSE(exportCsv(table, csv));
        FullDevice json(room);
        EXPECT_FALSE(exportJson(table, json));
    }
    FullDevice enough(2000000);
    EXPECT_TRUE(exportCsv(table, enough));
}

} // namespace
} // namespace velmora
