// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <model/DateTimeModel.h>

#include <QObject>

#include <functional>

namespace quorvane {

/// Reports changes of the model that the shell reacts to. The model announces a change before it is
/// made; the reaction runs on a later event-loop iteration, when it is complete.
class ModelObserver final : public QObject {
    Q_OBJECT

public:
    struct Callbacks {
        std::function<void(bool)> onShowInMenuBar;
        std::function<void(PresentationMode)> onPresentationMode;
        std::function<void(bool)> onShowInDock;
    };

    /// Model and queue must outlive the observer.
    ModelObserver(const DateTimeModel& model, MainQueue& mainQueue, Callbacks callbacks);

    /// Observes from now on. Whether the icon shows is reported once without a change.
    void start();

private:
    template <typename Value>
    [[nodiscard]] auto deferred(std::function<void(Value)> Callbacks::*callback);

    const DateTimeModel& m_model;
    MainQueue& m_mainQueue;
    Callbacks m_callbacks;
};

} // namespace quorvane
