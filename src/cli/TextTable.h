// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QTextStream;

// A plain-text table for terminal output: a header row and data rows, each column padded to its
// widest cell and separated by two blanks; lines carry no trailing blanks. Line breaks inside a
// cell are shown as blanks so every row stays on one line.
class TextTable
{
public:
    explicit TextTable(const QStringList &headers);

    void addRow(const QStringList &cells);
    bool isEmpty() const { return m_rows.isEmpty(); }
    void print(QTextStream &out) const;

private:
    QStringList m_headers;
    QList<QStringList> m_rows;
};
