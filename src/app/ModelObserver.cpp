// SPDX-License-Identifier: MIT
#include "ModelObserver.h"

#include <QPointer>

#include <utility>

namespace quorvane {

ModelObserver::ModelObserver(const DateTimeModel& model, MainQueue& mainQueue, Callbacks callbacks)
    : m_model(model),
      m_mainQueue(mainQueue),
      m_callbacks(std::move(callbacks)) {
}

template <typename Value>
auto ModelObserver::deferred(std::function<void(Value)> Callbacks::*callback) {
    return [this, callback](Value value) {
        m_mainQueue.async([self = QPointer(this), callback, value] {
            if (self)
                (self->m_callbacks.*callback)(value);
        });
    };
}

void ModelObserver::start() {
    const auto reportShowInMenuBar = deferred(&Callbacks::onShowInMenuBar);
    connect(&m_model, &DateTimeModel::showInMenuBarWillChange, this, reportShowInMenuBar);
    reportShowInMenuBar(m_model.showInMenuBar());
    connect(
        &m_model,
        &DateTimeModel::presentationModeWillChange,
        this,
        deferred(&Callbacks::onPresentationMode));
    connect(
        &m_model, &DateTimeModel::showInDockWillChange, this, deferred(&Callbacks::onShowInDock));
}

} // namespace quorvane
