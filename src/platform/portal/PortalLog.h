// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace quorvane {

Q_DECLARE_LOGGING_CATEGORY(lcPortal)

} // namespace quorvane
