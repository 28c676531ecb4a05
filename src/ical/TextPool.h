// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QSet>
#include <QString>
#include <QStringDecoder>

#include <string>
#include <vector>

namespace ICal {

// Turns the field values of one parse into record text. Every string is allocated at its exact
// size (decoding UTF-8 in place would reserve a UTF-16 unit per byte), and short values that
// repeat across records (locations, organizers, recurring titles, an alarm's "Reminder") share
// one string, so a feed of thousands of events holds one copy of each. Only short values are
// shared, and only a bounded number of distinct ones, so the pool stays small whatever the text.
class TextPool
{
public:
    static constexpr qsizetype kMaxSharedLength = 96;
    static constexpr qsizetype kMaxSharedEntries = 8192;
    // Values up to this size go through reused buffers; longer ones are decoded in place.
    static constexpr qsizetype kScratchBytes = 64 * 1024;

    TextPool();

    // The decoded value; a U+FEFF at its start is kept (it is text, not a byte order mark).
    QString text(QByteArrayView utf8);
    // The decoded value with text escapes undone (see ICal::unescapeText).
    QString unescaped(QByteArrayView value);
    // As above, shared with earlier equal values.
    QString sharedText(QByteArrayView utf8);
    QString sharedUnescaped(QByteArrayView value);

private:
    QStringView decoded(QByteArrayView utf8);
    QString decodedLarge(QByteArrayView utf8);
    QByteArrayView unescapedSmall(QByteArrayView value);
    QString shared(QStringView text);

    QStringDecoder m_decoder;
    std::vector<QChar> m_chars;
    std::string m_bytes;
    QSet<QString> m_shared;
};

} // namespace ICal
