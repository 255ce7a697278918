// SPDX-License-Identifier: MIT
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <functional>
#include <wayland_sway/SwayReports.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

QJsonObject objectIn(const QByteArray& payload) {
    return QJsonDocument::fromJson(payload).object();
}

/// Beyond any screen, and far enough from the end of the numbers to be added up.
constexpr int farthest = 1 << 24;

int lengthOf(const QJsonValue& value) {
    return std::clamp(value.toInt(), -farthest, farthest);
}

QRect rectOf(const QJsonValue& value) {
    return {
        lengthOf(value["x"_L1]),
        lengthOf(value["y"_L1]),
        lengthOf(value["width"_L1]),
        lengthOf(value["height"_L1])};
}

SwayWindow windowOf(const QJsonObject& container) {
    const auto outer = rectOf(container["rect"_L1]);
    const auto inner = rectOf(container["window_rect"_L1]);
    return {
        container["id"_L1].toInteger(),
        container["pid"_L1].toInteger(),
        container["name"_L1].toString(),
        container["focused"_L1].toBool(),
        inner.translated(outer.topLeft())};
}

/// Depth first: JSON of Qt's own depth alone comes here.
std::optional<SwayWindow>
found(const QJsonObject& node, const std::function<bool(const SwayWindow&)>& isWanted) {
    for (const auto& list : {node["nodes"_L1].toArray(), node["floating_nodes"_L1].toArray()}) {
        for (const auto& child : list) {
            const auto object = child.toObject();
            if (const auto window = windowOf(object); isWanted(window))
                return window;
            if (auto below = found(object, isWanted))
                return below;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<SwayWorkspaceFocus> workspaceFocusIn(const QByteArray& payload) {
    const auto event = objectIn(payload);
    const auto output = event["current"_L1]["output"_L1].toString();
    if (event["change"_L1].toString() != "focus"_L1 || output.isEmpty())
        return std::nullopt;
    return SwayWorkspaceFocus{output, event["old"_L1]["output"_L1].toString() == output};
}

std::optional<QString> focusedOutputIn(const QByteArray& payload) {
    for (const auto& workspace : QJsonDocument::fromJson(payload).array()) {
        if (workspace["focused"_L1].toBool())
            return workspace["output"_L1].toString();
    }
    return std::nullopt;
}

std::optional<SwayWindow> namedWindowIn(const QByteArray& payload) {
    const auto event = objectIn(payload);
    if (event["change"_L1].toString() != "title"_L1)
        return std::nullopt;
    return windowOf(event["container"_L1].toObject());
}

std::optional<SwayWindow>
windowIn(const QByteArray& payload, std::int64_t pid, const QString& title) {
    return found(objectIn(payload), [pid, &title](const SwayWindow& window) {
        return window.pid == pid && window.title == title;
    });
}

} // namespace quorvane
