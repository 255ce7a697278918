// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

#include <array>

namespace quorvane {

class KeyCap;

/// A shortcut as a row of key caps, with room for four modifiers and a key. A tooltip of the row is
/// shown over every cap.
class KeyCapRow final : public QWidget {
    Q_OBJECT

public:
    static constexpr std::size_t mostKeys = 5;

    explicit KeyCapRow(QWidget* parent = nullptr);

    /// What is on the caps, and as many names for those who hear them. Labels past the fifth are
    /// not shown.
    void setKeys(const QStringList& labels, const QStringList& names);

private:
    /// All of them at once: the row may change while its window is torn down, which is no time to
    /// make widgets.
    std::array<KeyCap*, mostKeys> m_caps{};
};

} // namespace quorvane
