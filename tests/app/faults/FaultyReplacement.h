// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <settings/FileReplacement.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A file that is replaced on a disk that refuses, or that is full in the middle.
class FaultyReplacement final : public FileReplacement {
public:
    FaultyReplacement(std::unique_ptr<FileReplacement> real, FaultPlan& plan)
        : m_real(std::move(real)),
          m_plan(plan) {}

    [[nodiscard]] bool makeFolder() override {
        return !m_plan.strikes("FileReplacement::makeFolder") && m_real->makeFolder();
    }

    void excludeOthers() override {
        if (!m_plan.strikes("FileReplacement::excludeOthers"))
            m_real->excludeOthers();
    }

    [[nodiscard]] bool open() override {
        return !m_plan.strikes("FileReplacement::open") && m_real->open();
    }

    [[nodiscard]] bool restrictToOwner() override {
        return !m_plan.strikes("FileReplacement::restrictToOwner") && m_real->restrictToOwner();
    }

    [[nodiscard]] bool write(const QByteArray& contents) override {
        if (!m_plan.strikes("FileReplacement::write"))
            return m_real->write(contents);
        static_cast<void>(m_real->write(contents.first(contents.size() / 2)));
        return false;
    }

    [[nodiscard]] bool commit() override {
        return !m_plan.strikes("FileReplacement::commit") && m_real->commit();
    }

private:
    std::unique_ptr<FileReplacement> m_real;
    FaultPlan& m_plan;
};

} // namespace quorvane
