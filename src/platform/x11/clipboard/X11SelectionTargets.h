// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace quorvane {

/// The targets that stand for contents, each once, in the owner's order. The others are questions
/// about the selection, or orders that change it (ICCCM 2.6.2 and 2.6.3): asking for DELETE
/// deletes.
[[nodiscard]] QStringList contentTargets(const QStringList& targets);

/// The order in which contents are read: first what a user would miss most if time runs out.
[[nodiscard]] QStringList readingOrder(QStringList targets);

} // namespace quorvane
