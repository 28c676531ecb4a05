// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Weather {

// The daily forecast shown in the calendar views ("weather/..." preferences). Forecasts are not
// fetched in this version; the service exists so that the views have one place to ask.
class Service : public QObject
{
    Q_OBJECT

public:
    explicit Service(QObject *parent = nullptr);
};

} // namespace Weather
