// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace quorvane {

/// The height that the content's layout asks for at this width, in points.
[[nodiscard]] int fittingHeight(QWidget& content, int width);

} // namespace quorvane
