// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/ZoneCache.h"

#include "ical/ICalBytes.h"

namespace ICal {

namespace {

bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

} // namespace

bool ZoneCache::hasZoneShape(QByteArrayView id)
{
    bool partStart = true;
    for (const char c : id) {
        if (partStart) {
            if (!isLetter(c))
                return false;
            partStart = false;
        } else if (c == '/') {
            partStart = true;
        } else if (!isLetter(c) && !(c >= '0' && c <= '9') && c != '_' && c != '+' && c != '-' && c != '.'
                   && c != ':') {
            return false;
        }
    }
    return !partStart;
}

QTimeZone ZoneCache::lookup(QByteArrayView id)
{
    if (!hasZoneShape(id))
        return QTimeZone();
    return QTimeZone(id.toByteArray());
}

const ZoneCache::Entry *ZoneCache::find(QByteArrayView id)
{
    if (m_last >= 0 && m_entries.at(m_last).id == id)
        return &m_entries.at(m_last);
    const QByteArray key = QByteArray::fromRawData(id.data(), id.size());
    const auto it = m_index.constFind(key);
    if (it != m_index.constEnd()) {
        m_last = it.value();
        return &m_entries.at(m_last);
    }
    if (m_entries.size() >= kMaxLookups) {
        m_overflow.id = id.toByteArray();
        m_overflow.name = Bytes::decode(id);
        m_overflow.zone = QTimeZone();
        m_overflow.valid = false;
        return &m_overflow;
    }
    Entry entry;
    entry.id = id.toByteArray();
    entry.name = Bytes::decode(id);
    if (!id.isEmpty()) {
        entry.zone = lookup(id);
        entry.valid = entry.zone.isValid();
    }
    m_entries.append(std::move(entry));
    m_last = m_entries.size() - 1;
    m_index.insert(m_entries.constLast().id, m_last);
    return &m_entries.constLast();
}

const QTimeZone *ZoneCache::zone(QByteArrayView id)
{
    const Entry *entry = find(id);
    return entry->valid ? &entry->zone : nullptr;
}

QString ZoneCache::name(QByteArrayView id)
{
    return find(id)->name;
}

} // namespace ICal
