// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace quorvane {

/// How the user wants programs to look, as far as the desktop tells.
struct DesktopAppearance {
    enum class Scheme { Light, Dark };

    /// In sRGB, each 0 to 1.
    struct Accent {
        double red;
        double green;
        double blue;

        friend bool operator==(const Accent&, const Accent&) = default;
    };

    struct Font {
        QString family;
        double points;

        friend bool operator==(const Font&, const Font&) = default;
    };

    std::optional<Scheme> scheme{}; ///< none: the user has no preference
    std::optional<Accent> accent{};
    std::optional<Font> font{};
    bool wantsMoreContrast = false;
    bool wantsLessMotion = false;

    friend bool operator==(const DesktopAppearance&, const DesktopAppearance&) = default;
};

/// The desktop's settings of how programs look, now and whenever they change.
class Appearance {
public:
    virtual ~Appearance() = default;

    /// What is known. From a source that answers at once it is known from the beginning, so that
    /// the first paint has it; of one that has to be waited for, nothing before its first answer.
    [[nodiscard]] virtual DesktopAppearance current() const = 0;

    /// Asks what has to be waited for, and from then on follows it. Returns at once: the first
    /// paint does not wait for a desktop that is slow to answer.
    virtual void read() = 0;

    /// Called whenever current() has become another; replaces an earlier handler.
    virtual void onChanged(std::function<void()> handler) = 0;
};

} // namespace quorvane
