// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/TextPool.h"

#include <cstring>

namespace ICal {

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

QByteArrayView TextPool::unescapedBytes(QByteArrayView value)
{
    qsizetype backslash = value.indexOf('\\');
    if (backslash < 0)
        return value;
    // Unescaping only shortens the value.
    m_bytes.resize(value.size());
    char *const start = m_bytes.data();
    char *out = start;
    qsizetype from = 0;
    while (backslash >= 0) {
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
        backslash = value.indexOf('\\', from);
    }
    std::memcpy(out, value.data() + from, value.size() - from);
    out += value.size() - from;
    return QByteArrayView(start, out - start);
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
    return decoded(utf8).toString();
}

QString TextPool::unescaped(QByteArrayView value)
{
    return decoded(unescapedBytes(value)).toString();
}

QString TextPool::sharedText(QByteArrayView utf8)
{
    return shared(decoded(utf8));
}

QString TextPool::sharedUnescaped(QByteArrayView value)
{
    return shared(decoded(unescapedBytes(value)));
}

} // namespace ICal
