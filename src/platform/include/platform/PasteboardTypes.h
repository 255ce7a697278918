// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace quorvane {

/// Of the types that an owner offers, those that stand for contents, each once, in the owner's
/// order. The others are questions about a selection of X11, or orders that change it (ICCCM 2.6.2
/// and 2.6.3): asking for DELETE deletes.
[[nodiscard]] QStringList contentTypes(const QStringList& targets);

/// The order in which contents are read: first what a user would miss most if time runs out.
[[nodiscard]] QStringList readingOrder(QStringList targets);

} // namespace quorvane
