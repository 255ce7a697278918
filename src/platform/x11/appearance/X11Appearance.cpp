// SPDX-License-Identifier: MIT
#include <x11_appearance/X11Appearance.h>
#include <x11_appearance/XSettings.h>
#include <x11_server/X11Events.h>
#include <x11_server/X11PropertyValue.h>
#include <x11_server/XcbReply.h>

#include <QLoggingCategory>
#include <xcb/xfixes.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcAppearance, "quorvane.appearance", QtFatalMsg)

/// In units of 32 bits: a mebibyte, where a desktop has some kilobytes.
constexpr std::uint32_t longestSettings = 1U << 18;

} // namespace

X11Appearance::X11Appearance(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_selection(m_connection->atom(u"_XSETTINGS_S%1"_s.arg(m_connection->screenNumber()))),
      m_property(m_connection->atom("_XSETTINGS_SETTINGS")),
      m_subscription(m_connection->subscribe(
          [this](const xcb_generic_event_t& event) { handleEvent(event); })) {
    followManagers();
    adoptManager(m_connection->selectionOwner(m_selection));
}

X11Appearance::~X11Appearance() = default;

void X11Appearance::followManagers() {
    auto* xcb = m_connection->xcb();
    const auto* extension = xcb_get_extension_data(xcb, &xcb_xfixes_id);
    const bool isThere = extension != nullptr && extension->present != 0;
    const XcbReply<xcb_xfixes_query_version_reply_t> version(
        isThere
            ? xcb_xfixes_query_version_reply(
                  xcb,
                  xcb_xfixes_query_version(xcb, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
                  nullptr)
            : nullptr);
    if (!version) {
        qCInfo(lcAppearance, "the X server does not tell of new settings managers");
        return;
    }
    m_ownerNotice = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    xcb_xfixes_select_selection_input(
        xcb,
        m_connection->root(),
        m_selection,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
}

void X11Appearance::adoptManager(xcb_window_t manager) {
    m_manager = manager;
    m_watch.reset();
    if (manager != XCB_WINDOW_NONE)
        m_watch = X11WindowWatch::start(m_connection, manager);
    if (m_watch)
        readSettings();
    m_connection->flush();
}

void X11Appearance::readSettings() {
    const auto piece =
        readPropertyPiece(*m_connection, m_manager, m_property, {.maxLength = longestSettings});
    if (!piece)
        return;
    const auto settings =
        piece->isLast ? XSettings::parse(piece->value.bytes) : std::optional<XSettings>();
    if (!settings) {
        qCInfo(lcAppearance, "the settings manager's settings are broken");
        return;
    }
    const auto now = appearanceOf(settings->gtkSettings());
    const auto handler = m_changed;
    if (std::exchange(m_current, now) != now && handler)
        handler();
}

void X11Appearance::handleEvent(const xcb_generic_event_t& event) {
    if (const auto* owned = eventAs<xcb_xfixes_selection_notify_event_t>(event, m_ownerNotice);
        owned != nullptr && owned->selection == m_selection) {
        adoptManager(owned->owner);
        return;
    }
    const auto* change = eventAs<xcb_property_notify_event_t>(event);
    if (change != nullptr && change->window == m_manager && change->atom == m_property)
        readSettings();
}

} // namespace quorvane
