// SPDX-License-Identifier: MIT
#include "JsonCoercion.h"

#include <QJsonArray>
#include <QLocale>
#include <QRegularExpression>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

using Limits = std::numeric_limits<qint64>;

qint64 saturated(double number) {
    // 2^63 itself is a double, the greatest integer below it is not.
    constexpr double beyond = 9223372036854775808.0;
    if (number >= beyond)
        return Limits::max();
    return number < -beyond ? Limits::min() : static_cast<qint64>(std::trunc(number));
}

std::optional<qint64> integerInText(const QString& text) {
    static const QRegularExpression number(
        uR"(\A\s*[+-]?(?:[0-9]+(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?\s*\z)"_s);
    if (!number.match(text).hasMatch())
        return std::nullopt;
    bool isExact = false;
    const auto integer = text.toLongLong(&isExact);
    // Beyond a double's range this gives an infinity, which saturates as it should.
    return isExact ? integer : saturated(QLocale::c().toDouble(text.trimmed()));
}

} // namespace

bool isScalar(const QJsonValue& value) {
    return value.isBool() || value.isDouble() || value.isString();
}

bool toBool(const QJsonValue& value) {
    if (value.isString()) {
        constexpr std::array trueTexts{"yes"_L1, "true"_L1, "1"_L1};
        return std::ranges::find(trueTexts, value.toString().toLower()) != trueTexts.end();
    }
    return value.isDouble() ? value.toDouble() != 0 : value.toBool();
}

std::optional<qint64> toInteger(const QJsonValue& value) {
    if (value.isString())
        return integerInText(value.toString());
    if (!value.isDouble())
        return std::nullopt;
    // Qt keeps a number that was written as an integer of 64 bits apart from the doubles.
    const auto number = value.toVariant();
    return number.typeId() == QMetaType::LongLong ? number.toLongLong()
                                                  : saturated(number.toDouble());
}

std::optional<QString> toText(const QJsonValue& value) {
    if (value.isString())
        return value.toString();
    if (value.isDouble())
        return value.toVariant().toString();
    return std::nullopt;
}

std::optional<QStringList> toTextList(const QJsonValue& value) {
    if (!value.isArray())
        return std::nullopt;
    QStringList texts;
    for (const auto element : value.toArray()) {
        if (!element.isString())
            return std::nullopt;
        texts.append(element.toString());
    }
    return texts;
}

} // namespace quorvane
