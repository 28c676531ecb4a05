// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QLabel;

// The muted line under a form field that explains it, turned into an error message when the
// field's value cannot be used. Style sheets tell the two apart by the label's "error" property.
namespace HintLabel {

// Shows `text` (hides the label when it is empty), as an error or as a plain hint.
void show(QLabel *label, const QString &text, bool isError);

} // namespace HintLabel
