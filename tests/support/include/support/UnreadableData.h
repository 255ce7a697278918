// SPDX-License-Identifier: MIT
#pragma once

#include <QMimeData>
#include <gtest/gtest.h>

namespace quorvane {

/// A text of another program that must not be read from Qt: that would wait for the program.
class UnreadableData final : public QMimeData {
public:
    [[nodiscard]] QStringList formats() const override { return {QStringLiteral("text/plain")}; }

    [[nodiscard]] bool hasFormat(const QString& type) const override {
        return formats().contains(type);
    }

protected:
    [[nodiscard]] QVariant retrieveData(const QString& /*type*/, QMetaType /*as*/) const override {
        ADD_FAILURE() << "the text was read";
        return {};
    }
};

} // namespace quorvane
