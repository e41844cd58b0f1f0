/** What a key in the library table's filter costs: 100,000 rows matched anew, beside one pass of memmem over
   the same texts for the same word. Rows stand in memory as the table has them, one text each. */

#include "library/filter_query.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace velmora;

constexpr unsigned rowCount = 100'000;
constexpr const char* words[] = {"Dancing", "Queen", "Waterloo", "Danube", "Blue", "Night",
                                 "Straße",  "Été",   "of",       "the",    "Love", "Road",
                                 "Moon",    "Señor", "River",    "Winter"};

/** Some words in no order. */
QString phrase(unsigned number, unsigned length) {
    QString text;
    for (unsigned word = 0; word < length; ++word) {
        number = number * 2654435761U + 12345;
        text += QString::fromUtf8(words[(number >> 16) % std::size(words)]) + u' ';
    }
    return text.trimmed();
}

std::vector<FilterText> makeRows() {
    std::vector<FilterText> rows;
    rows.reserve(rowCount);
    for (unsigned row = 0; row < rowCount; ++row) {
        RowTexts texts;
        const auto set = [&texts](LibraryColumn column, const QString& text) {
            texts[static_cast<std::size_t>(column)] = text;
        };
        const int year = 1950 + static_cast<int>(row % 75);
        set(LibraryColumn::name, phrase(row, 4) + ".mp3");
        set(LibraryColumn::folder, "/home/user/Music/" + phrase(row / 12, 3));
        set(LibraryColumn::kind, "Song");
        set(LibraryColumn::title, phrase(row, 4));
        set(LibraryColumn::artist, phrase(row / 100, 2));
        set(LibraryColumn::album, phrase(row / 12, 3));
        set(LibraryColumn::year, QString::number(year));
        set(LibraryColumn::genre, "Pop");
        set(LibraryColumn::tags, "ID3v2.3, ID3v1");
        set(LibraryColumn::size, "4.1 MB");
        set(LibraryColumn::date, "2020-05-04 11:12");
        rows.emplace_back(texts, year, row % 3 == 0 ? missingBit(portable::Field::cover) : MissingBits{0});
    }
    return rows;
}

const std::vector<FilterText>& rows() {
    static const std::vector<FilterText> all = makeRows();
    return all;
}

void filterRows(benchmark::State& state, const QString& typed) {
    rows();
    for (auto _ : state) {
        const FilterQuery query(typed);
        std::vector<int> shown;
        for (std::size_t row = 0; row < rows().size(); ++row) {
            if (query.matches(rows()[row])) {
                shown.push_back(static_cast<int>(row));
            }
        }
        benchmark::DoNotOptimize(shown.data());
    }
}

void searchRows(benchmark::State& state, const std::string& word) {
    rows();
    for (auto _ : state) {
        std::size_t found = 0;
        for (const FilterText& row : rows()) {
            const std::string& text = row.folded();
            found += ::memmem(text.data(), text.size(), word.data(), word.size()) != nullptr ? 1U : 0U;
        }
        benchmark::DoNotOptimize(found);
    }
}

/** Words typed key by key behind what was TYPED before. The pass is for the longest word so far. */
void addKeys(const std::string& typed, const std::string& longestTyped, const std::string& word) {
    for (std::size_t keys = 1; keys <= word.size(); ++keys) {
        const std::string text = typed + word.substr(0, keys);
        const std::string longest = keys > longestTyped.size() ? word.substr(0, keys) : longestTyped;
        const std::string name = "key/" + text;
        benchmark::RegisterBenchmark((name + "/velmora").c_str(), filterRows, QString::fromStdString(text));
        benchmark::RegisterBenchmark((name + "/yardstick").c_str(), searchRows, longest);
    }
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    addKeys("", "", "waterloo");
    addKeys("queen moon ", "queen", "danube");
    addKeys("artist:", "", "queen");
    addKeys("year:1970-1979 missing:cover ", "", "queen");
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
