// SPDX-License-Identifier: MIT
#include "PanelScene.h"

#include <controls/FocusRing.h>
#include <panel/PanelMetrics.h>

#include <QLayout>

namespace quorvane {

namespace {

DateTimeModel& prepared(DateTimeModel& model, const PanelScene::Preparation& prepare) {
    if (prepare)
        prepare(model);
    return model;
}

PopoverView::Callbacks noCallbacks() {
    const auto nothing = [] {
    };
    return {nothing, nothing, nothing, nothing, nothing};
}

} // namespace

PanelScene::PanelScene(MainQueue& queue, const Preparation& prepare, const UserLocale& locale)
    : m_pasteboard(m_log, queue),
      m_model({sample::clock(), m_defaults, sample::currentZone(), sample::zones(), locale}),
      m_view(
          prepared(m_model, prepare),
          {m_pasteboard,
           m_keyboard,
           sample::zones(),
           queue,
           sample::clock(),
           sample::currentZone(),
           {[] {
               return true;
           }}},
          noCallbacks()) {
    new FocusRing(&m_view);
}

void PanelScene::show(QPoint corner) {
    m_view.ensurePolished();
    m_view.setGeometry(
        {corner, QSize(panelmetrics::width, m_view.layout()->heightForWidth(panelmetrics::width))});
    m_view.show();
}

} // namespace quorvane
