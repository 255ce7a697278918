// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <backends/ServiceCandidate.h>
#include <map>
#include <optional>

namespace quorvane {

/// How a service is called in $QUORVANE_BACKEND and in the log.
[[nodiscard]] QString nameOf(ChosenService service);

/// What $QUORVANE_BACKEND says: one backend for all services, or a list of "service=backend".
class ForcedBackends {
public:
    /// Parts that name no service are left out.
    [[nodiscard]] static ForcedBackends fromText(const QString& text);

    /// The one backend that may have the service; none where the choice is free.
    [[nodiscard]] std::optional<QString> of(ChosenService service) const;

private:
    std::optional<QString> m_all;
    std::map<ChosenService, QString> m_each;
};

} // namespace quorvane
