// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <vector>

namespace quorvane {

/// GNOME's lists of shortcuts, as `gsettings list-recursively` tells them, one after the other.
class BoundCommands {
public:
    /// An accelerator and what people call the command that has it.
    struct Binding {
        QString accelerator;
        QString command;

        friend bool operator==(const Binding&, const Binding&) = default;
    };

    /// The settings under this path are ours.
    explicit BoundCommands(QString ownPath) : m_ownPath(std::move(ownPath)) {}

    /// Takes the lines of a list that desktop and shell come with.
    void addList(QStringView lines);

    /// Takes the lines of an entry that the user, or a program, has added.
    void addCustom(const QString& path, QStringView lines);

    /// The paths of the entries that were added, ours among them; none as long as no line told.
    [[nodiscard]] const std::optional<QStringList>& customPaths() const { return m_customPaths; }

    /// What our entry binds; none without one.
    [[nodiscard]] const std::optional<QString>& own() const { return m_own; }

    /// All others.
    [[nodiscard]] const std::vector<Binding>& others() const { return m_others; }

private:
    QString m_ownPath;
    std::optional<QStringList> m_customPaths;
    std::optional<QString> m_own;
    std::vector<Binding> m_others;
};

} // namespace quorvane
