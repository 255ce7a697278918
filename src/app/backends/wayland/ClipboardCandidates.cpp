// SPDX-License-Identifier: MIT
#include "ClipboardCandidates.h"

#include <string_view>
#include <wayland_clipboard/WaylandPasteboard.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

ServiceVerdict choose(WaylandLink& link, PlatformServices& services) {
    for (const std::string_view name : DataControl::interfaces()) {
        if (!link.offers(name))
            continue;
        services.pasteboard = std::make_unique<WaylandPasteboard>(
            link.connection(), link.seats(), link.session().queue);
        return ServiceVerdict::whole(
            u"the compositor offers "_s +
            QLatin1StringView(name.data(), static_cast<qsizetype>(name.size())));
    }
    return ServiceVerdict::no(u"the compositor offers no data-control"_s);
}

} // namespace

ServiceCandidates clipboardCandidates(const std::shared_ptr<WaylandLink>& link) {
    return {{
        ChosenService::Clipboard,
        u"wayland"_s,
        [link](PlatformServices& services, Wish /*wish*/) { return choose(*link, services); },
    }};
}

} // namespace quorvane
