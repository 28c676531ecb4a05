// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QString>
#include <QTimeZone>

namespace ICal {

// Time zones named by TZID parameters, looked up once per name for the life of one parse. A feed
// names a handful of zones tens of thousands of times; a zone database lookup costs microseconds.
class ZoneCache
{
public:
    // Distinct names that are looked up at most; later new names count as unknown. Real text names
    // a few dozen zones; the cap keeps hostile text with millions of made-up names from spending
    // minutes in the zone database.
    static constexpr qsizetype kMaxLookups = 20000;

    // The zone of an IANA identifier (UTF-8), or nullptr when the name is empty or not a known zone.
    // The pointer stays valid until the next call.
    const QTimeZone *zone(QByteArrayView id);
    // The identifier as text (shared between the records that name it).
    QString name(QByteArrayView id);

    // True when a name has the shape of a zone identifier: "/"-separated parts, each beginning with
    // an ASCII letter, of letters, digits and "_+-.:". Only such names reach the zone database,
    // which opens them as file names below the zone folder (a made-up "../../dev/stdin" would be
    // read from).
    static bool hasZoneShape(QByteArrayView id);
    // An uncached lookup with the same rules.
    static QTimeZone lookup(QByteArrayView id);

private:
    struct Entry
    {
        QByteArray id;
        QString name;
        QTimeZone zone;
        bool valid = false;
    };

    const Entry *find(QByteArrayView id);

    QList<Entry> m_entries;
    QHash<QByteArray, qsizetype> m_index;
    qsizetype m_last = -1;
    Entry m_overflow;
};

} // namespace ICal
