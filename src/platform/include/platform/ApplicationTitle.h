// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace quorvane {

/// What people call an application, by the names its windows carry, the general one last: both
/// strings of WM_CLASS (ICCCM 4.1.2.5) or the app_id of xdg-shell. Of a reverse domain name it is
/// the last part. Empty where there are no names; never long, and never markup.
[[nodiscard]] QString applicationTitle(const QStringList& classes);

} // namespace quorvane
