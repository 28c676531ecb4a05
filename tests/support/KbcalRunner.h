// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Cli.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QString>
#include <QStringList>
#include <QTextStream>

// What one kbcal command line did when run in-process.
struct KbcalResult
{
    int status = -1;
    QString out;
    QString err;

    QJsonDocument json() const { return QJsonDocument::fromJson(out.toUtf8()); }
};

// Runs one kbcal command line in-process, with standard input, output and error as buffers and
// standard error taken to be no terminal.
inline KbcalResult runKbcal(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    QString out;
    QString err;
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    QBuffer in;
    in.setData(input);
    in.open(QIODevice::ReadOnly);
    Cli cli(outStream, errStream, &in, false);
    KbcalResult result;
    result.status = cli.run(arguments);
    outStream.flush();
    errStream.flush();
    result.out = out;
    result.err = err;
    return result;
}
