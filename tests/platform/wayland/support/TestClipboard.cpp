// SPDX-License-Identifier: MIT
#include "support/TestClipboard.h"

#include <algorithm>
#include <ext-data-control-v1-client.h>
#include <fcntl.h>
#include <unistd.h>
#include <utility>
#include <wayland-server-core.h>
#include <wayland-server-protocol.h>
#include <wlr-data-control-unstable-v1-client.h>

namespace quorvane {

namespace {

enum Interface { Manager, Device, Source, Offer };

// Events by their numbers.
constexpr std::uint32_t announcedOffer = 0;
constexpr std::uint32_t selected = 1;
constexpr std::uint32_t primarySelected = 3;
constexpr std::uint32_t offered = 0;
constexpr std::uint32_t sendContents = 0;
constexpr std::uint32_t cancelled = 1;

/// Which clipboard an offer is of, and of which compositor's.
struct OfferData {
    TestClipboard* clipboard;
    TestClipboard::Kind kind;
};

} // namespace

struct TestClipboard::Requests {
    static int manager(
        const void* /*implementation*/,
        void* target,
        std::uint32_t opcode,
        const wl_message* /*message*/,
        wl_argument* arguments) {
        auto* resource = static_cast<wl_resource*>(target);
        auto& self = *static_cast<TestClipboard*>(wl_resource_get_user_data(resource));
        if (opcode == 2) {
            wl_resource_destroy(resource);
            return 0;
        }
        const auto kind = opcode == 0 ? Source : Device;
        auto* made = wl_resource_create(
            wl_resource_get_client(resource),
            self.m_interfaces[kind],
            wl_resource_get_version(resource),
            arguments[0].n);
        if (kind == Source) {
            wl_resource_set_dispatcher(made, source, nullptr, &self, forgetSource);
            self.m_sources[made] = {};
            return 0;
        }
        wl_resource_set_dispatcher(made, device, nullptr, &self, forgetDevice);
        self.m_devices.push_back(made);
        self.announce(made, Kind::General);
        self.announce(made, Kind::Primary);
        return 0;
    }

    static int device(
        const void* /*implementation*/,
        void* target,
        std::uint32_t opcode,
        const wl_message* /*message*/,
        wl_argument* arguments) {
        auto* resource = static_cast<wl_resource*>(target);
        auto& self = *static_cast<TestClipboard*>(wl_resource_get_user_data(resource));
        if (opcode == 1)
            wl_resource_destroy(resource);
        else
            self.select(
                reinterpret_cast<wl_resource*>(arguments[0].o),
                opcode == 0 ? Kind::General : Kind::Primary);
        return 0;
    }

    static int source(
        const void* /*implementation*/,
        void* target,
        std::uint32_t opcode,
        const wl_message* /*message*/,
        wl_argument* arguments) {
        auto* resource = static_cast<wl_resource*>(target);
        auto& self = *static_cast<TestClipboard*>(wl_resource_get_user_data(resource));
        if (opcode == 1)
            wl_resource_destroy(resource);
        else
            self.m_sources[resource].emplace_back(arguments[0].s);
        return 0;
    }

    static int offer(
        const void* /*implementation*/,
        void* target,
        std::uint32_t opcode,
        const wl_message* /*message*/,
        wl_argument* arguments) {
        auto* resource = static_cast<wl_resource*>(target);
        const auto* data = static_cast<OfferData*>(wl_resource_get_user_data(resource));
        if (opcode == 1)
            wl_resource_destroy(resource);
        else
            data->clipboard->receive(data->kind, arguments[0].s, arguments[1].h);
        return 0;
    }

    static void forgetDevice(wl_resource* resource) {
        auto& self = *static_cast<TestClipboard*>(wl_resource_get_user_data(resource));
        std::erase(self.m_devices, resource);
    }

    static void forgetSource(wl_resource* resource) {
        auto& self = *static_cast<TestClipboard*>(wl_resource_get_user_data(resource));
        self.m_sources.erase(resource);
        for (auto& [kind, selection] : self.m_selections) {
            if (selection.source != resource)
                continue;
            selection = {};
            self.announceAll(kind);
        }
    }

    static void forgetOffer(wl_resource* resource) {
        delete static_cast<OfferData*>(wl_resource_get_user_data(resource));
    }

    static void
    bindManager(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        auto& self = *static_cast<TestClipboard*>(data);
        auto* made =
            wl_resource_create(client, self.m_interfaces[Manager], static_cast<int>(version), id);
        wl_resource_set_dispatcher(made, manager, nullptr, data, nullptr);
        self.followClient(client);
    }

    static void
    bindSeat(wl_client* client, void* /*data*/, std::uint32_t version, std::uint32_t id) {
        static constexpr struct wl_seat_interface requests {
            nullptr, nullptr, nullptr, [](wl_client*, wl_resource* seat) {
                wl_resource_destroy(seat);
            }
        };

        auto* seat = wl_resource_create(client, &wl_seat_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(seat, &requests, nullptr, nullptr);
    }
};

TestClipboard::TestClipboard(TestCompositor& compositor, Protocol protocol)
    : m_compositor(compositor) {
    const bool isExt = protocol == Protocol::Ext;
    m_interfaces[Manager] =
        isExt ? &ext_data_control_manager_v1_interface : &zwlr_data_control_manager_v1_interface;
    m_interfaces[Device] =
        isExt ? &ext_data_control_device_v1_interface : &zwlr_data_control_device_v1_interface;
    m_interfaces[Source] =
        isExt ? &ext_data_control_source_v1_interface : &zwlr_data_control_source_v1_interface;
    m_interfaces[Offer] =
        isExt ? &ext_data_control_offer_v1_interface : &zwlr_data_control_offer_v1_interface;
    m_compositor.run([this](wl_display* display) {
        m_manager = wl_global_create(
            display,
            m_interfaces[Manager],
            m_interfaces[Manager]->version,
            this,
            Requests::bindManager);
        m_seat = wl_global_create(display, &wl_seat_interface, 7, this, Requests::bindSeat);
    });
}

// The connections end first: their objects lead here.
TestClipboard::~TestClipboard() {
    m_compositor.stop();
}

void TestClipboard::copy(const ForeignContents& contents, Kind kind) {
    m_compositor.run([&](wl_display*) {
        cancel(m_selections[kind], nullptr);
        m_selections[kind] = {nullptr, contents};
        announceAll(kind);
    });
}

void TestClipboard::empty(Kind kind) {
    copy({}, kind);
}

std::vector<std::string> TestClipboard::types(Kind kind) {
    std::vector<std::string> found;
    m_compositor.run([&](wl_display*) { found = typesOf(m_selections[kind]); });
    return found;
}

int TestClipboard::paste(const std::string& type, Kind kind) {
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return -1;
    m_compositor.run([&](wl_display*) {
        if (auto* source = m_selections[kind].source)
            wl_resource_post_event(source, sendContents, type.c_str(), ends[1]);
    });
    ::close(ends[1]);
    return ends[0];
}

int TestClipboard::readingsOfItself() {
    int count = 0;
    m_compositor.run([&](wl_display*) { count = m_readingsOfItself; });
    return count;
}

int TestClipboard::settings() {
    int count = 0;
    m_compositor.run([&](wl_display*) { count = m_settings; });
    return count;
}

void TestClipboard::removeSeat() {
    m_compositor.run([this](wl_display*) { wl_global_destroy(std::exchange(m_seat, nullptr)); });
}

// Nothing can be told to a client whose objects are going one by one.
void TestClipboard::followClient(wl_client* client) {
    struct Watch {
        wl_listener listener;
        TestClipboard* clipboard;
    };

    auto* watch = new Watch{{{}, {}}, this};
    watch->listener.notify = [](wl_listener* listener, void*) {
        auto* gone = reinterpret_cast<Watch*>(listener);
        gone->clipboard->m_devices.clear();
        delete gone;
    };
    wl_client_add_destroy_listener(client, &watch->listener);
}

void TestClipboard::announceAll(Kind kind) {
    for (auto* device : m_devices)
        announce(device, kind);
}

void TestClipboard::announce(wl_resource* device, Kind kind) {
    const auto event = kind == Kind::General ? selected : primarySelected;
    const auto types = typesOf(m_selections[kind]);
    if (types.empty()) {
        wl_resource_post_event(device, event, nullptr);
        return;
    }
    auto* offer = wl_resource_create(
        wl_resource_get_client(device), m_interfaces[Offer], wl_resource_get_version(device), 0);
    wl_resource_set_dispatcher(
        offer, Requests::offer, nullptr, new OfferData{this, kind}, Requests::forgetOffer);
    wl_resource_post_event(device, announcedOffer, offer);
    for (const auto& type : types)
        wl_resource_post_event(offer, offered, type.c_str());
    wl_resource_post_event(device, event, offer);
}

void TestClipboard::select(wl_resource* source, Kind kind) {
    ++m_settings;
    cancel(m_selections[kind], source);
    m_selections[kind] = {source, {}};
    announceAll(kind);
}

void TestClipboard::cancel(Selection& selection, const wl_resource* next) {
    auto* source = std::exchange(selection.source, nullptr);
    if (source != nullptr && source != next)
        wl_resource_post_event(source, cancelled);
}

void TestClipboard::receive(Kind kind, const std::string& type, int descriptor) {
    const auto& selection = m_selections[kind];
    if (selection.source != nullptr) {
        ++m_readingsOfItself;
        wl_resource_post_event(selection.source, sendContents, type.c_str(), descriptor);
        ::close(descriptor);
        return;
    }
    const auto found = std::ranges::find(selection.foreign, type, &ForeignType::type);
    if (found == selection.foreign.end())
        ::close(descriptor);
    else
        m_writers.write(descriptor, *found);
}

std::vector<std::string> TestClipboard::typesOf(const Selection& selection) const {
    if (selection.source != nullptr)
        return m_sources.at(selection.source);
    std::vector<std::string> types;
    for (const auto& entry : selection.foreign)
        types.push_back(entry.type);
    return types;
}

} // namespace quorvane
