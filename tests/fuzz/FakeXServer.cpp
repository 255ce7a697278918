// SPDX-License-Identifier: MIT
#include "FakeXServer.h"

#include "FuzzInput.h"

#include <algorithm>
#include <cstdlib>
#include <sys/eventfd.h>

namespace quorvane {

namespace {

// Up to here the protocol has names of its own (X Window System Protocol, appendix B).
constexpr xcb_atom_t lastPredefinedAtom = 68;

} // namespace

FakeXServer& FakeXServer::instance() {
    static FakeXServer server;
    return server;
}

void FakeXServer::reset() {
    m_properties.clear();
    m_owners.clear();
    m_events.clear();
    m_conversion = {};
    m_windows = 0;
}

const FakeXServer::Property* FakeXServer::property(xcb_window_t window, xcb_atom_t name) const {
    const auto found = m_properties.find({window, name});
    return found == m_properties.end() ? nullptr : &found->second;
}

std::optional<QByteArray> FakeXServer::takeEvent() {
    if (m_events.empty())
        return std::nullopt;
    auto event = m_events.front();
    m_events.pop_front();
    return event;
}

xcb_atom_t FakeXServer::atom(const QByteArray& name) {
    auto known = std::ranges::find(m_atoms, name);
    if (known == m_atoms.end())
        known = m_atoms.insert(m_atoms.end(), name);
    return lastPredefinedAtom + 1 + static_cast<xcb_atom_t>(known - m_atoms.begin());
}

std::optional<QByteArray> FakeXServer::nameOf(xcb_atom_t atom) const {
    if (atom == XCB_ATOM_STRING)
        return "STRING";
    const auto index = std::size_t{atom} - lastPredefinedAtom - 1;
    return index < m_atoms.size() ? std::optional(m_atoms[index]) : std::nullopt;
}

xcb_window_t FakeXServer::owner(xcb_atom_t selection) const {
    const auto found = m_owners.find(selection);
    return found == m_owners.end() ? xcb_window_t{XCB_WINDOW_NONE} : found->second;
}

namespace {

FakeXServer& server() {
    return FakeXServer::instance();
}

/// Never looked into.
xcb_connection_t* theConnection() {
    static char object = 0;
    return reinterpret_cast<xcb_connection_t*>(&object);
}

/// An answer to a request: its fixed part, and what follows it.
template <typename Reply>
Reply* answer(const Reply& reply, const QByteArray& rest = {}) {
    auto* bytes = static_cast<char*>(std::calloc(1, sizeof reply + std::size_t(rest.size())));
    demand(bytes != nullptr, "there is memory");
    std::memcpy(bytes, &reply, sizeof reply);
    std::memcpy(bytes + sizeof reply, rest.constData(), std::size_t(rest.size()));
    return reinterpret_cast<Reply*>(bytes);
}

/// A cookie carries what its reply is made of.
template <typename Cookie>
Cookie cookieOf(unsigned int sequence) {
    Cookie cookie{};
    cookie.sequence = sequence;
    return cookie;
}

struct PropertyQuestion {
    bool deletes = false;
    xcb_window_t window = XCB_WINDOW_NONE;
    xcb_atom_t name = XCB_ATOM_NONE;
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
};

PropertyQuestion& lastQuestion() {
    static PropertyQuestion question;
    return question;
}

} // namespace

} // namespace quorvane

using namespace quorvane;

// In the place of libxcb's.
// NOLINTBEGIN(readability-identifier-naming)
extern "C" {

xcb_connection_t* xcb_connect(const char*, int* screen) {
    *screen = 0;
    return theConnection();
}

int xcb_connection_has_error(xcb_connection_t*) {
    return 0;
}

void xcb_disconnect(xcb_connection_t*) {
}

int xcb_flush(xcb_connection_t*) {
    return 1;
}

int xcb_get_file_descriptor(xcb_connection_t*) {
    static const int descriptor = eventfd(0, EFD_CLOEXEC);
    return descriptor;
}

const xcb_setup_t* xcb_get_setup(xcb_connection_t*) {
    static const xcb_setup_t setup = [] {
        xcb_setup_t made{};
        made.resource_id_base = FakeXServer::firstWindow;
        made.resource_id_mask = FakeXServer::windowMask;
        return made;
    }();
    return &setup;
}

xcb_screen_iterator_t xcb_setup_roots_iterator(const xcb_setup_t*) {
    static xcb_screen_t screen{};
    screen.root = 1;
    return {&screen, 1, 0};
}

xcb_generic_event_t* xcb_poll_for_event(xcb_connection_t*) {
    const auto event = server().takeEvent();
    if (!event)
        return nullptr;
    xcb_generic_event_t generic;
    std::memcpy(&generic, event->constData(), sizeof generic);
    return answer(generic);
}

std::uint32_t xcb_generate_id(xcb_connection_t*) {
    return server().newWindow();
}

xcb_void_cookie_t xcb_create_window(
    xcb_connection_t*,
    std::uint8_t,
    xcb_window_t,
    xcb_window_t,
    std::int16_t,
    std::int16_t,
    std::uint16_t,
    std::uint16_t,
    std::uint16_t,
    std::uint16_t,
    xcb_visualid_t,
    std::uint32_t,
    const void*) {
    return {};
}

xcb_void_cookie_t xcb_destroy_window(xcb_connection_t*, xcb_window_t) {
    return {};
}

xcb_void_cookie_t
xcb_change_window_attributes(xcb_connection_t*, xcb_window_t, std::uint32_t, const void*) {
    return {};
}

std::uint32_t xcb_get_maximum_request_length(xcb_connection_t*) {
    return 1024;
}

xcb_intern_atom_cookie_t
xcb_intern_atom(xcb_connection_t*, std::uint8_t, std::uint16_t length, const char* name) {
    return cookieOf<xcb_intern_atom_cookie_t>(server().atom(QByteArray(name, length)));
}

xcb_intern_atom_reply_t*
xcb_intern_atom_reply(xcb_connection_t*, xcb_intern_atom_cookie_t cookie, xcb_generic_error_t**) {
    xcb_intern_atom_reply_t reply{};
    reply.atom = cookie.sequence;
    return answer(reply);
}

xcb_get_atom_name_cookie_t xcb_get_atom_name(xcb_connection_t*, xcb_atom_t atom) {
    return cookieOf<xcb_get_atom_name_cookie_t>(atom);
}

xcb_get_atom_name_reply_t* xcb_get_atom_name_reply(
    xcb_connection_t*, xcb_get_atom_name_cookie_t cookie, xcb_generic_error_t**) {
    const auto name = server().nameOf(cookie.sequence);
    if (!name)
        return nullptr;
    xcb_get_atom_name_reply_t reply{};
    reply.name_len = static_cast<std::uint16_t>(name->size());
    return answer(reply, *name);
}

xcb_get_property_cookie_t xcb_get_property(
    xcb_connection_t*,
    std::uint8_t deletes,
    xcb_window_t window,
    xcb_atom_t name,
    xcb_atom_t,
    std::uint32_t offset,
    std::uint32_t length) {
    lastQuestion() = {deletes != 0, window, name, offset, length};
    return {};
}

xcb_get_property_reply_t*
xcb_get_property_reply(xcb_connection_t*, xcb_get_property_cookie_t, xcb_generic_error_t**) {
    const auto& question = lastQuestion();
    xcb_get_property_reply_t reply{};
    const auto* property = server().property(question.window, question.name);
    if (property == nullptr)
        return answer(reply);
    const auto start = qsizetype{question.offset} * 4;
    if (start > property->bytes.size())
        return nullptr;
    const auto part = property->bytes.mid(start, qsizetype{question.length} * 4);
    reply.type = property->type;
    reply.format = property->unitBits;
    reply.length = static_cast<std::uint32_t>((part.size() + 3) / 4);
    reply.bytes_after = static_cast<std::uint32_t>(property->bytes.size() - start - part.size());
    reply.value_len = static_cast<std::uint32_t>(part.size() * 8 / property->unitBits);
    if (question.deletes && reply.bytes_after == 0)
        server().remove(question.window, question.name);
    return answer(reply, part);
}

xcb_void_cookie_t xcb_convert_selection(
    xcb_connection_t*,
    xcb_window_t requestor,
    xcb_atom_t selection,
    xcb_atom_t target,
    xcb_atom_t property,
    xcb_timestamp_t time) {
    server().convert({requestor, selection, target, property, time});
    return {};
}

xcb_void_cookie_t xcb_delete_property(xcb_connection_t*, xcb_window_t window, xcb_atom_t name) {
    server().remove(window, name);
    return {};
}

xcb_void_cookie_t xcb_change_property(
    xcb_connection_t*,
    std::uint8_t,
    xcb_window_t window,
    xcb_atom_t name,
    xcb_atom_t type,
    std::uint8_t unitBits,
    std::uint32_t units,
    const void* value) {
    demand(unitBits == 8 || unitBits == 16 || unitBits == 32, "units have one of three sizes");
    const auto size = qsizetype{units} * unitBits / 8;
    demand(size <= 1024 * 4 - 24, "a request is no longer than the server takes");
    server().set(window, name, {type, unitBits, QByteArray(static_cast<const char*>(value), size)});
    return {};
}

xcb_get_selection_owner_cookie_t xcb_get_selection_owner(xcb_connection_t*, xcb_atom_t selection) {
    return cookieOf<xcb_get_selection_owner_cookie_t>(server().owner(selection));
}

xcb_get_selection_owner_reply_t* xcb_get_selection_owner_reply(
    xcb_connection_t*, xcb_get_selection_owner_cookie_t cookie, xcb_generic_error_t**) {
    xcb_get_selection_owner_reply_t reply{};
    reply.owner = cookie.sequence;
    return answer(reply);
}

xcb_void_cookie_t xcb_set_selection_owner(
    xcb_connection_t*, xcb_window_t owner, xcb_atom_t selection, xcb_timestamp_t) {
    server().setOwner(selection, owner);
    return {};
}

xcb_void_cookie_t
xcb_send_event(xcb_connection_t*, std::uint8_t, xcb_window_t, std::uint32_t, const char*) {
    return {};
}

xcb_get_window_attributes_cookie_t
xcb_get_window_attributes(xcb_connection_t*, xcb_window_t window) {
    return cookieOf<xcb_get_window_attributes_cookie_t>(window);
}

xcb_get_window_attributes_reply_t* xcb_get_window_attributes_reply(
    xcb_connection_t*, xcb_get_window_attributes_cookie_t cookie, xcb_generic_error_t**) {
    // Windows of odd numbers are gone.
    return cookie.sequence % 2 == 0 ? answer(xcb_get_window_attributes_reply_t{}) : nullptr;
}

const xcb_query_extension_reply_t* xcb_get_extension_data(xcb_connection_t*, xcb_extension_t*) {
    return nullptr;
}

} // extern "C"
// NOLINTEND(readability-identifier-naming)
