// SPDX-License-Identifier: MIT
#include <QJsonObject>

#include <cmath>
#include <settings/WindowFrameStore.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto xKey = "x"_L1;
constexpr auto yKey = "y"_L1;
constexpr auto widthKey = "width"_L1;
constexpr auto heightKey = "height"_L1;

// The coordinates of X11 and Wayland windows are 16 bits wide, so that every sum stays in range.
constexpr double greatestCoordinate = 32767;

std::optional<int> coordinate(const QJsonObject& stored, QLatin1StringView key) {
    const auto value = stored.value(key);
    if (!value.isDouble() || std::abs(value.toDouble()) > greatestCoordinate)
        return std::nullopt;
    return qRound(value.toDouble());
}

} // namespace

WindowFrameStore::WindowFrameStore(QString path, FileWriter& writer)
    : m_file(std::move(path), writer) {
}

std::optional<QRect> WindowFrameStore::frame(const QString& autosaveName) const {
    const auto stored = m_file.value(autosaveName).toObject();
    const auto x = coordinate(stored, xKey);
    const auto y = coordinate(stored, yKey);
    const auto width = coordinate(stored, widthKey);
    const auto height = coordinate(stored, heightKey);
    if (!x || !y || !width || !height || *width <= 0 || *height <= 0)
        return std::nullopt;
    return QRect(*x, *y, *width, *height);
}

void WindowFrameStore::setFrame(const QString& autosaveName, const QRect& frame) {
    m_file.setValue(
        autosaveName,
        QJsonObject{
            {xKey, frame.x()},
            {yKey, frame.y()},
            {widthKey, frame.width()},
            {heightKey, frame.height()}});
}

} // namespace quorvane
