#include "row_order.h"

#include <QCollator>

#include <algorithm>
#include <numeric>

namespace velmora {

namespace {

/** The place of each file in the order of one key alone; files that are equal have the same. */
using Ranks = std::vector<int>;

QCollator collatorOf(const QLocale& locale) {
    // The plain locale knows no natural order.
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

/** Ranks by IS_BEFORE among those that are not EMPTY, which come last. */
template <typename Before>
Ranks ranked(const std::vector<bool>& empty, bool descending, Before isBefore) {
    std::vector<int> order;
    for (int i = 0; i < static_cast<int>(empty.size()); ++i) {
        if (!empty[static_cast<std::size_t>(i)]) {
            order.push_back(i);
        }
    }
    std::sort(order.begin(), order.end(),
              [&](int a, int b) { return descending ? isBefore(b, a) : isBefore(a, b); });
    Ranks ranks(empty.size(), static_cast<int>(empty.size()));
    int rank = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const bool same = i > 0 && !isBefore(order[i - 1], order[i]) && !isBefore(order[i], order[i - 1]);
        rank = same ? rank : static_cast<int>(i);
        ranks[static_cast<std::size_t>(order[i])] = rank;
    }
    return ranks;
}

std::int64_t numberOf(const LibraryRows& rows, int row, LibraryColumn column) {
    switch (column) {
    case LibraryColumn::year:
        return yearOf(rows.at(row), rows.edits(row));
    case LibraryColumn::size:
        return static_cast<std::int64_t>(rows.at(row).size);
    default:
        return rows.at(row).created;
    }
}

Ranks ranksByNumber(const LibraryRows& rows, const std::vector<int>& files, const SortKey& key) {
    std::vector<std::int64_t> numbers;
    std::vector<bool> empty;
    for (const int file : files) {
        numbers.push_back(numberOf(rows, file, key.column));
        empty.push_back(numbers.back() == 0 && key.column != LibraryColumn::size);
    }
    return ranked(empty, key.descending, [&](int a, int b) {
        return numbers[static_cast<std::size_t>(a)] < numbers[static_cast<std::size_t>(b)];
    });
}

Ranks ranksByText(const LibraryRows& rows, const std::vector<int>& files, const SortKey& key,
                  const QCollator& collator) {
    std::vector<QCollatorSortKey> texts;
    std::vector<bool> empty;
    texts.reserve(files.size());
    for (const int file : files) {
        const QString text = rows.text(file, key.column);
        texts.push_back(collator.sortKey(text));
        empty.push_back(text.isEmpty());
    }
    return ranked(empty, key.descending, [&](int a, int b) {
        return texts[static_cast<std::size_t>(a)] < texts[static_cast<std::size_t>(b)];
    });
}

} // namespace

std::vector<int> sortedRows(const LibraryRows& rows, const std::vector<SortKey>& keys,
                            const QLocale& locale) {
    std::vector<int> files;
    for (int row = 0; row < rows.end(); ++row) {
        if (!rows.at(row).removed) {
            files.push_back(row);
        }
    }
    const QCollator collator = collatorOf(locale);
    std::vector<int> order(files.size());
    std::iota(order.begin(), order.end(), 0);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
        const Ranks ranks = isNumeric(key->column) ? ranksByNumber(rows, files, *key)
                                                   : ranksByText(rows, files, *key, collator);
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            return ranks[static_cast<std::size_t>(a)] < ranks[static_cast<std::size_t>(b)];
        });
    }
    std::transform(order.begin(), order.end(), order.begin(),
                   [&](int index) { return files[static_cast<std::size_t>(index)]; });
    return order;
}

} // namespace velmora
