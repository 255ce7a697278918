// SPDX-License-Identifier: MIT
#include <x11_server/X11Connection.h>
#include <x11_server/XcbRequests.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSocketNotifier>

#include <algorithm>
#include <sys/socket.h>
#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcX11, "quorvane.x11", QtFatalMsg)

const xcb_screen_t* screenAt(xcb_connection_t* connection, int index) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; index > 0 && screens.rem > 1; --index)
        xcb_screen_next(&screens);
    return screens.data;
}

void logError(const xcb_generic_error_t& error) {
    qCDebug(
        lcX11,
        "error %d of request %d.%d on 0x%x",
        error.error_code,
        error.major_code,
        error.minor_code,
        error.resource_id);
}

} // namespace

X11Connection::Subscription::Subscription(std::shared_ptr<EventHandler> handler)
    : m_handler(std::move(handler)) {
}

std::shared_ptr<X11Connection> X11Connection::open(std::function<void()> onLost) {
    int preferredScreen = 0;
    auto* connection = xcb_connect(nullptr, &preferredScreen);
    if (xcb_connection_has_error(connection) != 0) {
        qCInfo(lcX11, "no X server answers");
        xcb_disconnect(connection);
        return nullptr;
    }
    return std::shared_ptr<X11Connection>(
        new X11Connection(connection, preferredScreen, std::move(onLost)));
}

X11Connection::X11Connection(
    xcb_connection_t* connection, int preferredScreen, std::function<void()> onLost)
    : m_connection(connection),
      m_screenNumber(preferredScreen),
      m_screen(screenAt(connection, preferredScreen)),
      m_notifier(std::make_unique<QSocketNotifier>(
          xcb_get_file_descriptor(connection), QSocketNotifier::Read)),
      m_onLost(std::move(onLost)) {
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11Connection::drain);
    // Waiting for a reply reads events into xcb's own queue, where the socket no longer shows them.
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &X11Connection::drain);
}

X11Connection::~X11Connection() {
    m_notifier.reset();
    xcb_disconnect(m_connection);
}

bool X11Connection::owns(xcb_window_t window) const {
    return xcbrequests::owns(m_connection, window);
}

xcb_atom_t X11Connection::atom(const char* name) {
    if (const auto known = m_atoms.find(name); known != m_atoms.end())
        return known->second;
    const auto atom = xcbrequests::atom(m_connection, name);
    if (atom != XCB_ATOM_NONE)
        m_atoms.emplace(name, atom);
    return atom;
}

xcb_atom_t X11Connection::atom(const QString& name) {
    return atom(name.toUtf8().constData());
}

void X11Connection::learnAtoms(const std::vector<const char*>& names) {
    QStringList questions;
    for (const auto* name : names)
        questions.append(QString::fromLatin1(name));
    const auto answers = atoms(questions);
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (answers[index] != XCB_ATOM_NONE)
            m_atoms.emplace(names[index], answers[index]);
    }
}

std::vector<xcb_atom_t> X11Connection::atoms(const QStringList& names) const {
    return xcbrequests::atoms(m_connection, names);
}

QStringList X11Connection::atomNames(const std::vector<xcb_atom_t>& atoms) {
    return m_atomNames.of(m_connection, atoms);
}

xcb_window_t X11Connection::selectionOwner(xcb_atom_t selection) const {
    return xcbrequests::selectionOwner(m_connection, selection);
}

X11Connection::Subscription X11Connection::subscribe(EventHandler handler) {
    auto shared = std::make_shared<EventHandler>(std::move(handler));
    m_handlers.push_back(shared);
    return Subscription(std::move(shared));
}

void X11Connection::flush() {
    xcb_flush(m_connection);
}

void X11Connection::waitForServer() {
    xcbrequests::waitForServer(m_connection);
}

bool X11Connection::succeeded(xcb_void_cookie_t checkedRequest) {
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_connection, checkedRequest));
    if (error)
        logError(*error);
    return !error;
}

void X11Connection::noteUserTime(xcb_timestamp_t time) {
    // The server's clock starts over after 49.7 days.
    const bool isLater = static_cast<std::int32_t>(time - m_lastUserTime) > 0;
    if (time != XCB_CURRENT_TIME && (isLater || m_lastUserTime == XCB_CURRENT_TIME))
        m_lastUserTime = time;
}

void X11Connection::drain() {
    const auto keepAlive = weak_from_this().lock();
    while (XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)})
        dispatch(*event);
    xcb_flush(m_connection);
    if (m_notifier->isEnabled() && xcb_connection_has_error(m_connection) != 0)
        giveUp();
}

void X11Connection::dispatch(const xcb_generic_event_t& event) {
    if (event.response_type == 0)
        logError(reinterpret_cast<const xcb_generic_error_t&>(event));
    const auto handlers = m_handlers;
    for (const auto& weak : handlers) {
        if (const auto handler = weak.lock())
            (*handler)(event);
    }
    m_handlers.remove_if([](const auto& weak) { return weak.expired(); });
}

// A connection that xcb has given up stays open towards the server, which goes on to send us the
// keys that we grabbed, and the requests for the selections that we own.
void X11Connection::giveUp() {
    qCInfo(lcX11, "lost: %d", xcb_connection_has_error(m_connection));
    m_notifier->setEnabled(false);
    ::shutdown(xcb_get_file_descriptor(m_connection), SHUT_RDWR);
    if (m_onLost)
        m_onLost();
}

} // namespace quorvane
