// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/LineReader.h"

#include <cstring>

namespace ICal {

LineReader::LineReader(QByteArrayView utf8)
    : m_text(utf8)
{
    if (m_text.startsWith(QByteArrayView("\xEF\xBB\xBF", 3)))
        m_text = m_text.sliced(3);
}

QByteArrayView LineReader::piece(qsizetype from, qsizetype *end) const
{
    const char *begin = m_text.data() + from;
    const qsizetype available = m_text.size() - from;
    const auto *lf = static_cast<const char *>(available > 0 ? std::memchr(begin, '\n', available) : nullptr);
    if (!lf) {
        *end = m_text.size();
        return QByteArrayView(begin, available);
    }
    *end = lf - m_text.data();
    qsizetype length = lf - begin;
    if (length > 0 && begin[length - 1] == '\r')
        --length;
    return QByteArrayView(begin, length);
}

bool LineReader::next(QByteArrayView *line)
{
    if (m_finished)
        return false;
    qsizetype end = 0;
    const QByteArrayView first = piece(m_position, &end);
    const auto continues = [this](qsizetype lf) {
        return lf + 1 < m_text.size() && (m_text[lf + 1] == ' ' || m_text[lf + 1] == '\t');
    };
    if (end >= m_text.size()) {
        m_finished = true;
        *line = first;
        return true;
    }
    if (!continues(end)) {
        m_position = end + 1;
        *line = first;
        return true;
    }
    m_joined.truncate(0);
    m_joined.append(first);
    while (end < m_text.size() && continues(end)) {
        const QByteArrayView rest = piece(end + 2, &end);
        m_joined.append(rest);
    }
    if (end >= m_text.size())
        m_finished = true;
    else
        m_position = end + 1;
    *line = m_joined;
    return true;
}

} // namespace ICal
