// SPDX-License-Identifier: MIT
#include <platform_xdg/XdgSoftwareCentre.h>

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcUpdates, "quorvane.updates", QtFatalMsg)

} // namespace

XdgSoftwareCentre::XdgSoftwareCentre(MimeHandlers handlers, Opener open)
    : m_handlers(std::move(handlers)),
      m_open(std::move(open)) {
}

bool XdgSoftwareCentre::showPage(const QString& applicationId) {
    // Opening an address that nothing handles seems to succeed: the desktop's opener starts first
    // and fails later. So this is asked beforehand.
    if (!m_handlers.handles(u"x-scheme-handler/appstream"_s)) {
        qCInfo(lcUpdates, "nothing handles appstream addresses");
        return false;
    }
    return m_open(QUrl(u"appstream:"_s + applicationId));
}

} // namespace quorvane
