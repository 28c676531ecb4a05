// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

// Font variants derived from a widget's font.
namespace Typography {

// The font at semibold weight where the family has such a face; otherwise bold, which the font
// engine can synthesise (a semibold request on a regular-only family would render regular).
QFont semibold(QFont font);

} // namespace Typography
