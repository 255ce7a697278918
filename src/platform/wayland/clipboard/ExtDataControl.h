// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ext-data-control-v1-client.h>

namespace quorvane {

/// The calls of ext_data_control_v1, as DataControlDevice makes them.
struct ExtDataControl {
    using Manager = ext_data_control_manager_v1;
    using Device = ext_data_control_device_v1;
    using Source = ext_data_control_source_v1;
    using Offer = ext_data_control_offer_v1;
    using DeviceListener = ext_data_control_device_v1_listener;
    using SourceListener = ext_data_control_source_v1_listener;
    using OfferListener = ext_data_control_offer_v1_listener;

    static constexpr std::uint32_t version = 1;

    static const wl_interface& interface() { return ext_data_control_manager_v1_interface; }

    static Device* makeDevice(Manager* manager, wl_seat* seat) {
        return ext_data_control_manager_v1_get_data_device(manager, seat);
    }

    static Source* makeSource(Manager* manager) {
        return ext_data_control_manager_v1_create_data_source(manager);
    }

    static void offer(Source* source, const char* type) {
        ext_data_control_source_v1_offer(source, type);
    }

    static void receive(Offer* offer, const char* type, int descriptor) {
        ext_data_control_offer_v1_receive(offer, type, descriptor);
    }

    static bool hasPrimary(Device* /*device*/) { return true; }

    static void select(Device* device, Source* source) {
        ext_data_control_device_v1_set_selection(device, source);
    }

    static void selectPrimary(Device* device, Source* source) {
        ext_data_control_device_v1_set_primary_selection(device, source);
    }

    static void listen(Device* device, const DeviceListener& listener, void* data) {
        ext_data_control_device_v1_add_listener(device, &listener, data);
    }

    static void listen(Source* source, const SourceListener& listener, void* data) {
        ext_data_control_source_v1_add_listener(source, &listener, data);
    }

    static void listen(Offer* offer, const OfferListener& listener, void* data) {
        ext_data_control_offer_v1_add_listener(offer, &listener, data);
    }

    static void destroy(Manager* manager) { ext_data_control_manager_v1_destroy(manager); }

    static void destroy(Device* device) { ext_data_control_device_v1_destroy(device); }

    static void destroy(Source* source) { ext_data_control_source_v1_destroy(source); }

    static void destroy(Offer* offer) { ext_data_control_offer_v1_destroy(offer); }
};

} // namespace quorvane
