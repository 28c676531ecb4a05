// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Typography.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

namespace Typography {

QFont semibold(QFont font)
{
    const QString family = QFontInfo(font).family();
    bool hasSemibold = false;
    for (const QString &style : QFontDatabase::styles(family)) {
        const int weight = QFontDatabase::weight(family, style);
        if (weight >= QFont::Medium && weight < QFont::Bold && !QFontDatabase::italic(family, style))
            hasSemibold = true;
    }
    font.setWeight(hasSemibold ? QFont::DemiBold : QFont::Bold);
    return font;
}

} // namespace Typography
