// SPDX-License-Identifier: MIT
#include "FakeXServer.h"
#include "FuzzInput.h"
#include "FuzzSession.h"

#include <testing/VirtualMainQueue.h>
#include <x11_clipboard/X11SelectionOwner.h>
#include <x11_clipboard/X11SelectionSave.h>
#include <x11_clipboard/X11TextReading.h>

#include <QAbstractEventDispatcher>

#include <array>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

/// Everything that is read in one run together stays below this.
constexpr qsizetype mostBytes = 4096;

/// A program that holds the clipboard, and that asks for it, and says whatever the input makes it
/// say; against it the part of the backend that reads, and the part that offers.
class Conversation {
public:
    explicit Conversation(FuzzInput& input) : m_input(input) {}

    void run() {
        while (!m_input.isAtEnd()) {
            act();
            settle();
        }
        m_queue.advance(Seconds(30));
        demand(m_saves == m_saved, "each save ends once, in its time");
        demand(m_readings == m_read, "so does each reading of a text");
    }

private:
    void act() {
        switch (m_input.below(9)) {
        case 0:
            return beginSave();
        case 1:
            return beginReading();
        case 2:
            return answerAsAsked();
        case 3:
            return answerOtherwise();
        case 4:
            return writeProperty();
        case 5:
            return announceProperty(XCB_PROPERTY_NEW_VALUE);
        case 6:
            return m_queue.advance(Seconds(m_input.number<std::uint8_t>() / 256.0));
        case 7:
            return requestOurs();
        default:
            return sendAnything();
        }
    }

    /// The connection's events are handled before the event loop would wait.
    void settle() {
        Q_EMIT QAbstractEventDispatcher::instance()->aboutToBlock();
        m_queue.run();
    }

    void beginSave() {
        m_save.reset();
        m_saves = m_saved + 1;
        m_save = std::make_unique<X11SelectionSave>(
            m_inbox,
            m_queue,
            m_clipboard,
            m_clock,
            [this](const PasteboardItem& item) { takeSaved(item); },
            mostBytes);
    }

    void takeSaved(const PasteboardItem& item) {
        ++m_saved;
        qsizetype size = 0;
        for (const auto& entry : item) {
            size += entry.bytes.size();
            demand(
                entry.unitBits == 8 || entry.unitBits == 16 || entry.unitBits == 32,
                "units have one of three sizes");
        }
        demand(size <= mostBytes, "a save is no longer than it may be");
        demand(item.size() <= X11SelectionSave::mostTargets, "nor has it more targets");
        // What was saved goes back later.
        (void) m_owner.own(item);
        FakeXServer::instance().setOwner(m_clipboard, XCB_WINDOW_NONE);
        (void) m_owner.own(item);
    }

    void beginReading() {
        m_reading.reset();
        m_readings = m_read + 1;
        m_reading = std::make_unique<X11TextReading>(
            m_inbox,
            X11SelectionSource{m_clipboard, {}},
            m_clock,
            X11TextReading::Limits{Seconds(0.3), Seconds(1), mostBytes},
            [this](const std::optional<QString>& text) {
                ++m_read;
                demand(!text || text->size() <= mostBytes, "a text is no longer than it may be");
            });
    }

    void answerAsAsked() {
        const auto& asked = FakeXServer::instance().lastConversion();
        xcb_selection_notify_event_t event{};
        event.response_type = XCB_SELECTION_NOTIFY;
        event.requestor = asked.requestor;
        event.selection = asked.selection;
        event.target = asked.target;
        event.property = m_input.flag() ? asked.property : xcb_atom_t{XCB_ATOM_NONE};
        event.time = asked.time;
        FakeXServer::instance().send(event);
    }

    void answerOtherwise() {
        xcb_selection_notify_event_t event{};
        event.response_type = XCB_SELECTION_NOTIFY | 0x80;
        event.requestor = window();
        event.selection = atom();
        event.target = atom();
        event.property = atom();
        event.time = m_input.number<std::uint8_t>();
        FakeXServer::instance().send(event);
    }

    void writeProperty() {
        constexpr std::array<std::uint8_t, 3> sizes{8, 16, 32};
        const auto unitBits = m_input.oneOf(sizes);
        const auto type = atom();
        auto bytes = m_input.piece();
        // Some are longer than what may be read of them.
        if (m_input.below(16) == 0)
            bytes = bytes.repeated(m_input.number<std::uint8_t>());
        bytes.truncate(bytes.size() / 4 * 4);
        const auto& asked = FakeXServer::instance().lastConversion();
        FakeXServer::instance().set(asked.requestor, asked.property, {type, unitBits, bytes});
        announceProperty(XCB_PROPERTY_NEW_VALUE);
    }

    void announceProperty(std::uint8_t state) {
        const auto& asked = FakeXServer::instance().lastConversion();
        xcb_property_notify_event_t event{};
        event.response_type = XCB_PROPERTY_NOTIFY;
        event.window = asked.requestor;
        event.atom = asked.property;
        event.state = state;
        FakeXServer::instance().send(event);
    }

    /// Another program asks for what we offer.
    void requestOurs() {
        xcb_selection_request_event_t event{};
        event.response_type = XCB_SELECTION_REQUEST;
        event.owner = FakeXServer::instance().owner(m_clipboard);
        event.requestor = window();
        event.selection = m_clipboard;
        event.target = atom();
        event.property = atom();
        event.time = m_input.number<std::uint8_t>();
        // A request for several carries its pairs there.
        FakeXServer::instance().set(event.requestor, event.property, {XCB_ATOM_ATOM, 32, pairs()});
        FakeXServer::instance().send(event);
        xcb_property_notify_event_t taken{};
        taken.response_type = XCB_PROPERTY_NOTIFY;
        taken.window = event.requestor;
        taken.atom = event.property;
        taken.state = XCB_PROPERTY_DELETE;
        for (int increments = m_input.below(8); increments > 0; --increments)
            FakeXServer::instance().send(taken);
    }

    QByteArray pairs() {
        QByteArray bytes;
        for (int count = m_input.below(8); count > 0; --count) {
            const xcb_atom_t each = atom();
            bytes.append(reinterpret_cast<const char*>(&each), sizeof each);
        }
        return bytes;
    }

    void sendAnything() {
        xcb_generic_event_t event{};
        const auto bytes = m_input.bytes(32);
        std::memcpy(&event, bytes.constData(), static_cast<std::size_t>(bytes.size()));
        FakeXServer::instance().send(event);
    }

    xcb_window_t window() {
        const auto number = m_input.number<std::uint8_t>();
        return number < 128 ? FakeXServer::firstWindow + number : xcb_window_t{number};
    }

    /// Those that conversations are about, and any other.
    xcb_atom_t atom() {
        static const std::array<QByteArray, 12> names{
            "TARGETS",
            "INCR",
            "ATOM",
            "UTF8_STRING",
            "MULTIPLE",
            "TIMESTAMP",
            "text/plain",
            "text/html",
            "image/png",
            "CLIPBOARD",
            "DELETE",
            QByteArray()};
        const auto number = m_input.number<std::uint8_t>();
        if (number < names.size())
            return FakeXServer::instance().atom(names[number]);
        return number == 255 ? FakeXServer::instance().lastConversion().property
                             : xcb_atom_t{number};
    }

    FuzzInput& m_input;
    VirtualMainQueue m_queue;
    std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    xcb_atom_t m_clipboard = m_connection->atom("CLIPBOARD");
    X11ServerClock m_serverClock{m_connection};
    X11SelectionDelivery m_delivery{m_connection, m_queue};
    X11SelectionOwner m_owner{m_connection, m_queue, m_serverClock, m_delivery, m_clipboard};
    X11SelectionInbox m_inbox{m_connection, m_queue};
    xcb_timestamp_t m_clock = 7;
    int m_saves = 0;
    int m_saved = 0;
    int m_readings = 0;
    int m_read = 0;
    std::unique_ptr<X11SelectionSave> m_save;
    std::unique_ptr<X11TextReading> m_reading;
};

} // namespace

/// What a hostile X client says about selections, below the wire: replies, increments, forged
/// events, requests for what we offer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    makeFuzzSession();
    FakeXServer::instance().reset();
    FuzzInput input(data, size);
    Conversation(input).run();
    return 0;
}
