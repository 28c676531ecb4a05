// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace ICal {

// Walks the unfolded content lines of UTF-8 iCalendar text without copying it: a line ends at LF
// or CR LF, and a following piece that begins with a space or a tab continues it (without that
// first character). Empty pieces are lines of their own, so text ending in a line break ends with
// one empty line. A byte order mark at the very start is not part of the text.
//
// Unfolding works on bytes, so a character whose UTF-8 sequence was split by a fold comes back
// whole.
class LineReader
{
public:
    explicit LineReader(QByteArrayView utf8);

    // The next line, false after the last one. The view stays valid until the next call.
    bool next(QByteArrayView *line);

private:
    // The piece starting at `from`; `*end` receives the index of its LF, or the text size.
    QByteArrayView piece(qsizetype from, qsizetype *end) const;

    QByteArrayView m_text;
    qsizetype m_position = 0;
    bool m_finished = false;
    QByteArray m_joined;
};

} // namespace ICal
