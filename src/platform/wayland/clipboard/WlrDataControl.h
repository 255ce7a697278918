// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <wlr-data-control-unstable-v1-client.h>

namespace quorvane {

/// The calls of zwlr_data_control_v1, as DataControlDevice makes them.
struct WlrDataControl {
    using Manager = zwlr_data_control_manager_v1;
    using Device = zwlr_data_control_device_v1;
    using Source = zwlr_data_control_source_v1;
    using Offer = zwlr_data_control_offer_v1;
    using DeviceListener = zwlr_data_control_device_v1_listener;
    using SourceListener = zwlr_data_control_source_v1_listener;
    using OfferListener = zwlr_data_control_offer_v1_listener;

    static constexpr std::uint32_t version = 2;

    static const wl_interface& interface() { return zwlr_data_control_manager_v1_interface; }

    static Device* makeDevice(Manager* manager, wl_seat* seat) {
        return zwlr_data_control_manager_v1_get_data_device(manager, seat);
    }

    static Source* makeSource(Manager* manager) {
        return zwlr_data_control_manager_v1_create_data_source(manager);
    }

    static void offer(Source* source, const char* type) {
        zwlr_data_control_source_v1_offer(source, type);
    }

    static void receive(Offer* offer, const char* type, int descriptor) {
        zwlr_data_control_offer_v1_receive(offer, type, descriptor);
    }

    static bool hasPrimary(Device* device) {
        return zwlr_data_control_device_v1_get_version(device) >=
               ZWLR_DATA_CONTROL_DEVICE_V1_SET_PRIMARY_SELECTION_SINCE_VERSION;
    }

    static void select(Device* device, Source* source) {
        zwlr_data_control_device_v1_set_selection(device, source);
    }

    static void selectPrimary(Device* device, Source* source) {
        zwlr_data_control_device_v1_set_primary_selection(device, source);
    }

    static void listen(Device* device, const DeviceListener& listener, void* data) {
        zwlr_data_control_device_v1_add_listener(device, &listener, data);
    }

    static void listen(Source* source, const SourceListener& listener, void* data) {
        zwlr_data_control_source_v1_add_listener(source, &listener, data);
    }

    static void listen(Offer* offer, const OfferListener& listener, void* data) {
        zwlr_data_control_offer_v1_add_listener(offer, &listener, data);
    }

    static void destroy(Manager* manager) { zwlr_data_control_manager_v1_destroy(manager); }

    static void destroy(Device* device) { zwlr_data_control_device_v1_destroy(device); }

    static void destroy(Source* source) { zwlr_data_control_source_v1_destroy(source); }

    static void destroy(Offer* offer) { zwlr_data_control_offer_v1_destroy(offer); }
};

} // namespace quorvane
