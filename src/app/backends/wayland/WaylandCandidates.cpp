// SPDX-License-Identifier: MIT
#include "../Candidates.h"
#include "ClipboardCandidates.h"
#include "KeyboardCandidates.h"
#include "KwinCandidates.h"
#include "WaylandLink.h"
#include "WindowCandidates.h"

#include <memory>

namespace quorvane {

ServiceCandidates waylandCandidates(const DesktopSession& session) {
    const auto link = std::make_shared<WaylandLink>(session);
    ServiceCandidates all;
    for (const auto& some :
         {clipboardCandidates(link),
          keyboardCandidates(link),
          windowCandidates(link),
          kwinCandidates(link)})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

} // namespace quorvane
