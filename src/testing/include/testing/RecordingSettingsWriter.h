// SPDX-License-Identifier: MIT
#pragma once

#include <settings/SettingsWriter.h>

#include <vector>

namespace quorvane {

/// Writes nothing, keeps all that it is given, and tells an outcome when the test says so.
class RecordingSettingsWriter final : public SettingsWriter {
public:
    void write(FileChange change, Outcome outcome) override {
        m_changes.push_back(std::move(change));
        m_outcomes.push_back(std::move(outcome));
    }

    [[nodiscard]] std::optional<QString> moveAside(const QString&) override { return std::nullopt; }

    [[nodiscard]] const std::vector<FileChange>& changes() const { return m_changes; }

    /// Tells what became of the change with this index.
    void tell(std::size_t index, bool isWritten) const { m_outcomes.at(index)(isWritten); }

private:
    std::vector<FileChange> m_changes;
    std::vector<Outcome> m_outcomes;
};

} // namespace quorvane
