// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestCompositor.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

struct wl_resource;

namespace quorvane {

/// KWin's list of windows and of two virtual desktops, "1" and "2", for one program that follows.
class TestPlasmaWindows {
public:
    static constexpr std::uint32_t active = 1 << 0;
    static constexpr std::uint32_t minimised = 1 << 1;
    static constexpr std::uint32_t onAllDesktops = 1 << 6;

    struct Window {
        std::string appId;
        std::uint32_t pid = 0;
        std::uint32_t state = 0;
        std::string desktop = "1";
        wl_resource* resource = nullptr;
    };

    /// Puts the lists among the globals; the compositor must outlive it.
    explicit TestPlasmaWindows(TestCompositor& compositor);

    /// Before the program follows.
    void add(const std::string& uuid, const Window& window);

    void setState(const std::string& uuid, std::uint32_t state);
    void close(const std::string& uuid);
    void showDesktop(const std::string& id);

    /// The windows for which the keyboard was asked for.
    [[nodiscard]] std::vector<std::string> activated();

private:
    struct Server;

    TestCompositor& m_compositor;
    std::map<std::string, Window> m_windows;
    std::map<std::string, wl_resource*> m_desktops{{"1", nullptr}, {"2", nullptr}};
    std::vector<std::string> m_activated;
};

} // namespace quorvane
