// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/TextPool.h"

#include <cstring>

namespace ICal {

namespace {

// Writes the value with text escapes undone to `out` (at least value.size() bytes) and returns
// the length; unescaping only shortens.
qsizetype unescapeInto(QByteArrayView value, char *out)
{
    char *const start = out;
    qsizetype from = 0;
    for (qsizetype backslash = value.indexOf('\\'); backslash >= 0; backslash = value.indexOf('\\', from)) {
        std::memcpy(out, value.data() + from, backslash - from);
        out += backslash - from;
        const char next = backslash + 1 < value.size() ? value[backslash + 1] : '\0';
        if (next == ',' || next == ';' || next == '\\') {
            *out++ = next;
            from = backslash + 2;
        } else if (next == 'n' || next == 'N') {
            *out++ = '\n';
            from = backslash + 2;
        } else {
            // Any other backslash, or one standing last, stays; what follows is read normally.
            *out++ = '\\';
            from = backslash + 1;
        }
    }
    std::memcpy(out, value.data() + from, value.size() - from);
    out += value.size() - from;
    return out - start;
}

} // namespace

TextPool::TextPool()
    : m_decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom)
{ }

QStringView TextPool::decoded(QByteArrayView utf8)
{
    const qsizetype space = m_decoder.requiredSpace(utf8.size());
    if (qsizetype(m_chars.size()) < space)
        m_chars.resize(space);
    const QChar *end = m_decoder.appendToBuffer(m_chars.data(), utf8);
    return QStringView(m_chars.data(), end - m_chars.data());
}

QString TextPool::decodedLarge(QByteArrayView utf8)
{
    QString text(m_decoder.requiredSpace(utf8.size()), Qt::Uninitialized);
    const QChar *end = m_decoder.appendToBuffer(text.data(), utf8);
    text.truncate(end - text.constData());
    if (text.capacity() - text.size() > 4096)
        text.squeeze();
    return text;
}

QByteArrayView TextPool::unescapedSmall(QByteArrayView value)
{
    if (!value.contains('\\'))
        return value;
    m_bytes.resize(value.size());
    return QByteArrayView(m_bytes.data(), unescapeInto(value, m_bytes.data()));
}

QString TextPool::shared(QStringView text)
{
    if (text.size() > kMaxSharedLength)
        return text.toString();
    const QString probe = QString::fromRawData(text.data(), text.size());
    const auto it = m_shared.constFind(probe);
    if (it != m_shared.constEnd())
        return *it;
    QString value = text.toString();
    if (m_shared.size() < kMaxSharedEntries)
        m_shared.insert(value);
    return value;
}

QString TextPool::text(QByteArrayView utf8)
{
    if (utf8.size() > kScratchBytes)
        return decodedLarge(utf8);
    return decoded(utf8).toString();
}

QString TextPool::unescaped(QByteArrayView value)
{
    if (value.size() <= kScratchBytes)
        return decoded(unescapedSmall(value)).toString();
    if (!value.contains('\\'))
        return decodedLarge(value);
    QByteArray buffer(value.size(), Qt::Uninitialized);
    buffer.truncate(unescapeInto(value, buffer.data()));
    return decodedLarge(buffer);
}

QString TextPool::sharedText(QByteArrayView utf8)
{
    if (utf8.size() > kScratchBytes)
        return decodedLarge(utf8);
    return shared(decoded(utf8));
}

QString TextPool::sharedUnescaped(QByteArrayView value)
{
    if (value.size() > kScratchBytes)
        return unescaped(value);
    return shared(decoded(unescapedSmall(value)));
}

} // namespace ICal
