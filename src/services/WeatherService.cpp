// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/WeatherService.h"

namespace Weather {

Service::Service(QObject *parent)
    : QObject(parent)
{ }

} // namespace Weather
