// SPDX-License-Identifier: MIT
#include <settings/SettingsTable.h>
#include <settings/WindowFrameStore.h>

#include <QJsonObject>

#include <cmath>

namespace quorvane {

namespace {

namespace key = windowframesetting;

std::optional<int> coordinate(const QJsonObject& stored, QLatin1StringView name) {
    const auto value = stored.value(name);
    if (!value.isDouble() || std::abs(value.toDouble()) > key::greatestCoordinate)
        return std::nullopt;
    return qRound(value.toDouble());
}

} // namespace

WindowFrameStore::WindowFrameStore(QString path, SettingsWriter& writer)
    : m_file(std::move(path), writer) {
}

std::optional<QRect> WindowFrameStore::frame(const QString& autosaveName) const {
    const auto stored = m_file.value(autosaveName).toObject();
    const auto x = coordinate(stored, key::x);
    const auto y = coordinate(stored, key::y);
    const auto width = coordinate(stored, key::width);
    const auto height = coordinate(stored, key::height);
    if (!x || !y || !width || !height || *width <= 0 || *height <= 0)
        return std::nullopt;
    return QRect(*x, *y, *width, *height);
}

void WindowFrameStore::setFrame(const QString& autosaveName, const QRect& frame) {
    m_file.setValue(
        autosaveName,
        QJsonObject{
            {key::x, frame.x()},
            {key::y, frame.y()},
            {key::width, frame.width()},
            {key::height, frame.height()}});
}

} // namespace quorvane
