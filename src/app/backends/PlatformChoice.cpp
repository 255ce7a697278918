// SPDX-License-Identifier: MIT
#include "Candidates.h"
#include "MissingService.h"
#include "ServicesOfEveryDisplay.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <backends/ForcedBackends.h>
#include <backends/PlatformChoice.h>
#include <set>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcBackend, "quorvane.backend", QtFatalMsg)

constexpr std::array chosenServices{
    ChosenService::Layout, // which the services of shortcut and keys read
    ChosenService::Keys,   // with which the clipboard may come
    ChosenService::Clipboard,
    ChosenService::Shortcut,
    ChosenService::Windows,
    ChosenService::Panel,
};

void log(const ServiceCandidate& candidate, const ServiceVerdict& verdict) {
    qCInfo(
        lcBackend,
        "%ls: %s %ls: %ls",
        qUtf16Printable(nameOf(candidate.service)),
        verdict.isChosen ? "by" : "not by",
        qUtf16Printable(candidate.backend),
        qUtf16Printable(verdict.reason));
}

/// The first candidate that has the service; one that nobody else can have where there is none.
ServiceVerdict choose(
    PlatformServices& services,
    ChosenService service,
    const ServiceCandidates& candidates,
    const std::optional<QString>& forced) {
    for (const auto& candidate : candidates) {
        if (candidate.service != service || (forced && candidate.backend != forced))
            continue;
        auto verdict = candidate.choose(services, forced ? Wish::Forced : Wish::Free);
        log(candidate, verdict);
        if (verdict.isChosen)
            return verdict;
    }
    qCInfo(lcBackend, "%ls: by nobody", qUtf16Printable(nameOf(service)));
    return ServiceVerdict::no({});
}

ServiceState stateOf(ChosenService service, const ServiceVerdict& verdict) {
    const auto explanation = verdict.isChosen ? verdict.explanation : explanationWithout(service);
    return {desktopServiceOf(service), verdict.isChosen && verdict.isWhole, explanation};
}

void chooseAll(PlatformServices& services, const DesktopSession& session) {
    const auto forced =
        ForcedBackends::fromText(session.environment("QUORVANE_BACKEND").value_or(QString()));
    const auto candidates = allCandidates(session);
    std::set<ChosenService> missing;
    for (const auto service : chosenServices) {
        const auto verdict = choose(services, service, candidates, forced.of(service));
        if (!verdict.isChosen)
            missing.insert(service);
        if (isForTheUser(service))
            services.states.push_back(stateOf(service, verdict));
    }
    standIn(services, missing, session);
    if (std::ranges::all_of(services.states, &ServiceState::isWhole))
        services.states.clear();
}

} // namespace

PlatformServices makePlatformServices(const DesktopSession& session) {
    auto services = servicesOfEveryDisplay(session);
    chooseAll(services, session);
    // On X11 a lock takes the keyboard, which shows there.
    if (session.compositor.answer() == Compositor::Answer::Offers)
        heedScreenLock(services);
    completeAppearance(services, session.environment);
    return services;
}

} // namespace quorvane
