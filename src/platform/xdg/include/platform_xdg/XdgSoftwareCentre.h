// SPDX-License-Identifier: MIT
#pragma once

#include <platform/SoftwareCentre.h>
#include <platform_xdg/MimeHandlers.h>

#include <QUrl>

#include <functional>

namespace quorvane {

/// Whatever the desktop opens an "appstream:" address with.
class XdgSoftwareCentre final : public SoftwareCentre {
public:
    /// Hands an address to the desktop; false if it does not take it.
    using Opener = std::function<bool(const QUrl& url)>;

    XdgSoftwareCentre(MimeHandlers handlers, Opener open);

    [[nodiscard]] bool showPage(const QString& applicationId) override;

private:
    MimeHandlers m_handlers;
    Opener m_open;
};

} // namespace quorvane
