// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QStringView>

// Reading the pieces of a recurrence rule text ("FREQ=WEEKLY;BYDAY=MO,WE;UNTIL=20240110"), shared
// by the rule parser and the expansion's allocation-free reading of the same text.
namespace RuleText {

// Calls visit(upperKey, value) for each piece of the text split at ";" (empty pieces dropped) whose
// "=" stands at position 1 or later; key is upper-cased Latin-1 of at most 15 characters (longer
// keys are passed as empty). Pieces without such "=" are skipped.
template<typename Visitor>
void forEachPiece(QStringView text, Visitor &&visit);

// INTERVAL: the integer value, 1 for anything below 1 or not a number.
qint32 intervalValue(QStringView value);
// COUNT: the integer value, 0 for anything below 0 or not a number.
qint32 countValue(QStringView value);
// UNTIL in UTC: "yyyyMMddTHHmmss" after removing one trailing "Z", else "yyyyMMdd" as given at
// midnight; a floating or date-only value is taken as UTC. Invalid when neither reads.
QDateTime untilValue(QStringView value);
// Weekday number of a plain code, Monday 1 ... Sunday 7 (case-insensitive); 0 for anything else,
// including ordinals such as "1MO" or "-1FR".
int weekdayNumber(QStringView item);

// Upper-cases a key into `out` (16 bytes, zero-terminated); a key that is longer or not ASCII once
// upper-cased leaves it empty.
void upperKey(QStringView key, char *out);

// Strict digit readers: exactly "yyyyMMdd", exactly "yyyyMMddTHHmmss"; invalid otherwise.
QDate readDate(QStringView text);
bool readDateTime(QStringView text, QDate *date, QTime *time);

} // namespace RuleText

template<typename Visitor>
void RuleText::forEachPiece(QStringView text, Visitor &&visit)
{
    qsizetype pos = 0;
    while (pos <= text.size()) {
        qsizetype end = text.indexOf(u';', pos);
        if (end < 0)
            end = text.size();
        const QStringView piece = text.sliced(pos, end - pos);
        pos = end + 1;
        const qsizetype equals = piece.indexOf(u'=');
        if (equals < 1)
            continue;
        char key[16] = {};
        upperKey(piece.first(equals), key);
        visit(QLatin1StringView(key), piece.sliced(equals + 1));
    }
}
