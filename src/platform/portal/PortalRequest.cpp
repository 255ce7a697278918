// SPDX-License-Identifier: MIT
#include "PortalRequest.h"

#include "PortalLog.h"
#include "PortalNames.h"
#include "PortalPath.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QPointer>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

/// The codes of the signal.
constexpr uint success = 0;
constexpr uint cancelled = 1;

} // namespace

PortalRequest::PortalRequest(
    PortalDesktop& portal,
    MainQueue& queue,
    Question question,
    std::optional<Seconds> patience,
    Done done)
    : m_portal(portal),
      m_queue(queue),
      m_name(question.method.toString()),
      m_done(std::move(done)) {
    const auto token = portalpath::freshToken();
    m_path = portalpath::of(u"request", m_portal.bus(), token);
    if (m_portal.owner().isEmpty()) {
        fail(u"no portal"_s);
        return;
    }
    // The answer may come before the call returns.
    m_portal.bus().connect(
        m_portal.owner(),
        m_path,
        portalname::request.toString(),
        u"Response"_s,
        this,
        SLOT(respond(QDBusMessage)));
    put(question, token);
    if (patience)
        m_end = m_queue.after(*patience, [this] { fail(u"no answer"_s); });
}

PortalRequest::~PortalRequest() {
    if (m_isFinished)
        return;
    m_portal.bus().send(QDBusMessage::createMethodCall(
        m_portal.owner(), m_path, portalname::request.toString(), u"Close"_s));
}

void PortalRequest::put(const Question& question, const QString& token) {
    auto options = question.options;
    options.insert(u"handle_token"_s, token);
    auto message = m_portal.question(question.interface, question.method);
    message.setArguments(question.arguments);
    message << options;
    m_portal.ask(message, this, [this](const QDBusMessage& answer) { checkHandle(answer); });
}

void PortalRequest::checkHandle(const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ErrorMessage)
        fail(answer.errorMessage());
    else if (
        answer.signature() != "o"_L1 ||
        answer.arguments().constFirst().value<QDBusObjectPath>().path() != m_path)
        fail(u"a handle that is not ours"_s);
}

void PortalRequest::respond(const QDBusMessage& signal) {
    if (signal.signature() != "ua{sv}"_L1)
        return fail(u"an answer of other types"_s);
    const auto code = signal.arguments().at(0).toUInt();
    qCInfo(lcPortal, "%ls: %u", qUtf16Printable(m_name), code);
    auto results = qdbus_cast<QVariantMap>(signal.arguments().at(1));
    if (code == success)
        return finish({PortalResponse::Outcome::Success, std::move(results)});
    if (code == cancelled)
        results.clear();
    finish({PortalResponse::Outcome::Refused, std::move(results)});
}

void PortalRequest::fail(const QString& reason) {
    qCInfo(lcPortal, "%ls: %ls", qUtf16Printable(m_name), qUtf16Printable(reason));
    finish({});
}

void PortalRequest::finish(PortalResponse response) {
    if (std::exchange(m_isFinished, true))
        return;
    m_end.cancel();
    m_queue.async([self = QPointer(this), response = std::move(response)] {
        if (!self)
            return;
        const auto done = std::exchange(self->m_done, {});
        done(response);
    });
}

} // namespace quorvane
