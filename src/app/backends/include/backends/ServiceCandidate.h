// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PlatformServices.h>

#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace quorvane {

/// The services that are chosen one by one.
enum class ChosenService { Clipboard, Keys, Shortcut, Windows, Panel, Layout };

/// Whether a candidate is asked for by $QUORVANE_BACKEND: then it does its best, also where it
/// would leave the service to others.
enum class Wish { Free, Forced };

/// What became of a candidate.
struct ServiceVerdict {
    bool isChosen = false;
    QString reason; ///< for the log
    bool isWhole = true;
    QString explanation; ///< how the service works by this candidate, a sentence for the user;
                         ///< empty where it is whole

    [[nodiscard]] static ServiceVerdict no(QString reason) {
        return {false, std::move(reason), true, {}};
    }

    /// As on a desktop that offers everything.
    [[nodiscard]] static ServiceVerdict whole(QString reason) {
        return {true, std::move(reason), true, {}};
    }

    [[nodiscard]] static ServiceVerdict limited(QString reason, QString explanation) {
        return {true, std::move(reason), false, std::move(explanation)};
    }
};

/// One way to have one service. `choose` puts it among the services if it is available here.
struct ServiceCandidate {
    ChosenService service = ChosenService::Clipboard;
    QString backend; ///< as $QUORVANE_BACKEND names it
    std::function<ServiceVerdict(PlatformServices& services, Wish wish)> choose;
};

using ServiceCandidates = std::vector<ServiceCandidate>;

} // namespace quorvane
