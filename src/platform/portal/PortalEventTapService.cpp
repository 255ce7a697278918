// SPDX-License-Identifier: MIT
#include "PortalEventTap.h"

#include <platform_portal/PortalEventTapService.h>

namespace quorvane {

using namespace Qt::StringLiterals;

TapResult PortalEventTapService::createTap(TapHandlers handlers) {
    if (!m_shortcut->isBound())
        return TapFailure{u"the user has not added it to the desktop's shortcuts"_s};
    return std::make_unique<PortalEventTap>(m_shortcut, std::move(handlers));
}

} // namespace quorvane
