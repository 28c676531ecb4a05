// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TextTable.h"

#include <QTextStream>

#include <algorithm>

namespace {

QString oneLine(const QString &cell)
{
    QString line = cell;
    line.replace(QLatin1String("\r\n"), QLatin1String(" "));
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    line.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return line;
}

} // namespace

TextTable::TextTable(const QStringList &headers)
    : m_headers(headers)
{ }

void TextTable::addRow(const QStringList &cells)
{
    QStringList row;
    row.reserve(m_headers.size());
    for (qsizetype i = 0; i < m_headers.size(); ++i)
        row.append(i < cells.size() ? oneLine(cells.at(i)) : QString());
    m_rows.append(row);
}

void TextTable::print(QTextStream &out) const
{
    QList<qsizetype> widths;
    for (const QString &header : m_headers)
        widths.append(header.size());
    for (const QStringList &row : m_rows) {
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths.at(i), row.at(i).size());
    }
    const auto printRow = [&](const QStringList &row) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i) {
            if (i > 0)
                line += QLatin1String("  ");
            line += i + 1 < row.size() ? row.at(i).leftJustified(widths.at(i)) : row.at(i);
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        out << line << '\n';
    };
    printRow(m_headers);
    for (const QStringList &row : m_rows)
        printRow(row);
}
