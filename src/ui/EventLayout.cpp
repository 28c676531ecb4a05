// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/EventLayout.h"

#include <algorithm>
#include <numeric>

namespace EventLayout {

QList<TimedPlacement> layoutTimed(const QList<TimedItem> &items, int minimumMinutes)
{
    const qsizetype count = items.size();
    QList<TimedPlacement> placements(count);
    QList<int> effectiveEnd(count);
    for (qsizetype i = 0; i < count; ++i)
        effectiveEnd[i] = std::max(items[i].end, items[i].start + std::max(minimumMinutes, 1));

    QList<qsizetype> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) {
        if (items[a].start != items[b].start)
            return items[a].start < items[b].start;
        return effectiveEnd[a] > effectiveEnd[b];
    });

    qsizetype index = 0;
    while (index < count) {
        // One cluster: everything reachable through overlaps from its first item.
        QList<qsizetype> cluster;
        QList<int> columnEnds; // the end of the last item placed in each column
        QList<QList<qsizetype>> columnItems; // the items of each column, by start
        int clusterEnd = items[order[index]].start;
        while (index < count && (cluster.isEmpty() || items[order[index]].start < clusterEnd)) {
            const qsizetype item = order[index++];
            int column = 0;
            while (column < columnEnds.size() && columnEnds[column] > items[item].start)
                ++column;
            if (column == columnEnds.size()) {
                columnEnds.append(effectiveEnd[item]);
                columnItems.append(QList<qsizetype>());
            } else {
                columnEnds[column] = effectiveEnd[item];
            }
            columnItems[column].append(item);
            placements[item].column = column;
            cluster.append(item);
            clusterEnd = std::max(clusterEnd, effectiveEnd[item]);
        }
        const int columns = int(columnEnds.size());
        for (qsizetype item : std::as_const(cluster)) {
            placements[item].columns = columns;
            // Spread right while no item of a later column overlaps this one. The items of a column
            // never overlap each other, so their ends rise with their starts: the one to check is
            // the first that ends after this item starts.
            int span = 1;
            for (int next = placements[item].column + 1; next < columns; ++next) {
                const QList<qsizetype> &inColumn = columnItems[next];
                const auto first = std::upper_bound(
                    inColumn.begin(), inColumn.end(), items[item].start,
                    [&effectiveEnd](int start, qsizetype other) { return start < effectiveEnd[other]; });
                if (first != inColumn.end() && items[*first].start < effectiveEnd[item])
                    break;
                ++span;
            }
            placements[item].span = span;
        }
    }
    return placements;
}

QList<int> packLanes(const QList<DayRangeItem> &items)
{
    const qsizetype count = items.size();
    QList<qsizetype> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) {
        if (items[a].first != items[b].first)
            return items[a].first < items[b].first;
        return items[a].last - items[a].first > items[b].last - items[b].first;
    });
    QList<int> lanes(count, 0);
    QList<int> laneEnds; // the last day taken in each lane
    for (qsizetype item : std::as_const(order)) {
        int lane = 0;
        while (lane < laneEnds.size() && laneEnds[lane] >= items[item].first)
            ++lane;
        if (lane == laneEnds.size())
            laneEnds.append(items[item].last);
        else
            laneEnds[lane] = items[item].last;
        lanes[item] = lane;
    }
    return lanes;
}

} // namespace EventLayout
