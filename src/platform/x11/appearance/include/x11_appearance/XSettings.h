// SPDX-License-Identifier: MIT
#pragma once

#include <platform/GtkAppearance.h>

#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <variant>

namespace quorvane {

/// The settings that a desktop shares with its programs in one property of a window
/// (freedesktop.org's XSETTINGS, version 0.5).
class XSettings {
public:
    /// None of them is believed if any is broken: another client has written them, and may write
    /// anything.
    [[nodiscard]] static std::optional<XSettings> parse(QByteArrayView property);

    /// None where there is no such setting, or one of another type.
    [[nodiscard]] std::optional<QString> text(const QString& name) const;
    [[nodiscard]] std::optional<std::int32_t> number(const QString& name) const;

    /// What concerns the look of programs.
    [[nodiscard]] GtkSettings gtkSettings() const;

private:
    /// Colours are read over: no setting that we know is one.
    using Value = std::variant<std::monostate, std::int32_t, QString>;

    std::map<QString, Value> m_values;
};

} // namespace quorvane
