// SPDX-License-Identifier: MIT
#include "MergedItem.h"

#include <delivery/TextInserter.h>
#include <platform/KeyCodes.h>

#include <QLoggingCategory>

#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcInsert, "quorvane.insert", QtFatalMsg)

constexpr KeyChord pasteChord{keycode::v, modifier::command};

} // namespace

TextInserter::TextInserter(Services services)
    : m_services(services),
      m_savesWanted(std::make_shared<const bool>(true)) {
}

TextInserter::~TextInserter() = default;

void TextInserter::insert(const QString& text) {
    if (!m_services.accessibilityRight.isTrusted()) {
        qCInfo(lcInsert, "dropped: the accessibility right is missing");
        m_services.accessibilityRight.prompt();
        return;
    }
    m_services.pasteboard.save(
        [this, text, wanted = std::weak_ptr(m_savesWanted)](PasteboardContents saved) {
            if (!wanted.expired())
                paste(text, std::move(saved));
        });
}

void TextInserter::finish() {
    m_savesWanted = std::make_shared<const bool>(true);
    m_deadlines.cancelAll();
    for (const auto& [number, saved] : std::exchange(m_pending, {}))
        restore(saved);
}

// One turn of the main loop: nobody can change the pasteboard between the save and the text.
void TextInserter::paste(const QString& text, PasteboardContents saved) {
    m_services.pasteboard.clear();
    m_services.pasteboard.setString(text, TextStay::Passing);
    post();
    scheduleRestore(std::move(saved));
}

void TextInserter::post() {
    switch (m_services.keyPoster.post(pasteChord)) {
    case PostOutcome::Posted:
        break;
    case PostOutcome::NoSuchKey:
        qCInfo(lcInsert, "no paste keys: the keyboard has none that would do");
        break;
    case PostOutcome::Unavailable:
        qCInfo(lcInsert, "no paste keys: this desktop takes none from us");
        break;
    }
}

void TextInserter::scheduleRestore(PasteboardContents saved) {
    const int number = m_nextRestore++;
    m_pending.emplace(number, std::move(saved));
    m_deadlines.run(m_services.mainQueue, restoreDelay, [this, number] {
        restore(m_pending.extract(number).mapped());
    });
}

void TextInserter::restore(const PasteboardContents& saved) {
    m_services.pasteboard.clear();
    const auto item = mergedItem(saved.items);
    if (!item.empty() || saved.selection)
        m_services.pasteboard.write(item, saved.selection);
}

} // namespace quorvane
