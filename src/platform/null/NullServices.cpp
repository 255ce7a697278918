// SPDX-License-Identifier: MIT
#include <platform_null/NullServices.h>

#include <QWindow>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

class NullAccessibilityRight final : public AccessibilityRight {
public:
    [[nodiscard]] bool mayReadShortcut() const override { return false; }

    [[nodiscard]] TypingRight typing() const override { return TypingRight::Unavailable; }

    [[nodiscard]] bool canPrompt() const override { return false; }

    void prompt() override {}

    void onChanged(std::function<void()>) override {}
};

class NullEventTapService final : public EventTapService {
public:
    [[nodiscard]] TapResult createTap(TapHandlers) override {
        return TapFailure{u"there is no backend for the keyboard"_s};
    }
};

class NullDesktopShortcut final : public DesktopShortcut {
public:
    [[nodiscard]] QString desktopName() const override { return {}; }

    [[nodiscard]] std::optional<KeyChord> bound() const override { return std::nullopt; }

    [[nodiscard]] QString holder(const KeyChord&) const override { return {}; }

    void refresh() override {}

    void bind(const KeyChord&) override {}

    void unbind() override {}

    void onChanged(std::function<void()>) override {}

    void onRebound(std::function<void(const KeyChord&)>) override {}
};

class NullKeyPoster final : public KeyPoster {
public:
    [[nodiscard]] std::optional<PasteTarget> pasteTarget() const override { return std::nullopt; }

    void paste(const PasteTarget&, PostHandler done) override { done(PostOutcome::Unavailable); }
};

/// Answered in a later iteration of the event loop.
class NullRequest final : public PasteboardRequest {
public:
    explicit NullRequest(Deadline answer) : m_answer(std::move(answer)) {}

private:
    Deadline m_answer;
};

class NullPasteboard final : public Pasteboard {
public:
    explicit NullPasteboard(MainQueue& mainQueue) : m_mainQueue(mainQueue) {}

    void save(PasteSource, SaveHandler done) override {
        m_mainQueue.async([done = std::move(done)] { done({}); });
    }

    void clear() override {}

    [[nodiscard]] PutOutcome setString(const QString&, TextStay, PasteSource) override {
        return PutOutcome::Refused;
    }

    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    restore(PasteboardItem, std::optional<PasteboardItem>, std::function<void()> done) override {
        return std::make_unique<NullRequest>(m_mainQueue.after(Seconds(0), std::move(done)));
    }

    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    readText(PasteSource, TextHandler done) override {
        return readDraggedText(std::move(done));
    }

    [[nodiscard]] std::unique_ptr<PasteboardRequest> readDraggedText(TextHandler done) override {
        return std::make_unique<NullRequest>(
            m_mainQueue.after(Seconds(0), [done = std::move(done)] { done(std::nullopt); }));
    }

    void handOver(std::function<void()> done) override { m_mainQueue.async(std::move(done)); }

private:
    MainQueue& m_mainQueue;
};

class NullWorkspace final : public Workspace {
public:
    [[nodiscard]] FrontmostApplication frontmostApplication() const override { return {}; }

    [[nodiscard]] bool isShown(const RunningApplication&) const override { return false; }

    [[nodiscard]] bool receivesKeys(const RunningApplication&) const override { return false; }

    [[nodiscard]] QScreen* focusedScreen() const override { return nullptr; }

    [[nodiscard]] bool activate(const RunningApplication&) override { return false; }

    void onFrontmostChanged(std::function<void()>) override {}

    void onActiveSpaceChanged(std::function<void()>) override {}
};

class NullKeyboardLayout final : public KeyboardLayout {
public:
    [[nodiscard]] std::optional<std::u16string> characters(std::uint16_t) const override {
        return std::nullopt;
    }

    void onChanged(std::function<void()>) override {}
};

class NullWindowTraits final : public WindowTraits {
public:
    void setActivationPolicy(ActivationPolicy) override {}

    void preparePanel(QWindow&) override {}

    void presentPanel(QWindow& window) override {
        // Qt activates it by the token that the desktop has given. Without one, asking would make
        // desktops point out a window that they bring to the front by themselves.
        if (qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"))
            window.requestActivate();
    }

    void prepareDialog(QWindow&) override {}

    void orderFront(QWindow&) override {}

    void activate(QWindow& window) override {
        window.raise();
        window.requestActivate();
    }

    [[nodiscard]] bool placesWindows() const override { return false; }

    [[nodiscard]] bool isComposited() const override { return false; }

    void onCompositingChanged(std::function<void()>) override {}

    void setShadow(QWindow&, const QMargins&) override {}

    [[nodiscard]] std::optional<HeldInput> heldInput() const override { return std::nullopt; }
};

class NullStartupNotification final : public StartupNotification {
public:
    void begin(const ActivationToken&) override {}

    void end() override {}
};

class NullAppearance final : public Appearance {
public:
    [[nodiscard]] DesktopAppearance current() const override { return {}; }

    void read() override {}

    void onChanged(std::function<void()>) override {}
};

class NullNotifications final : public Notifications {
public:
    explicit NullNotifications(MainQueue& mainQueue) : m_mainQueue(mainQueue) {}

    void show(Notification, Done done) override {
        m_mainQueue.async([done = std::move(done)] { done(NotificationOutcome::NoServer); });
    }

private:
    MainQueue& m_mainQueue;
};

class NullSoftwareCentre final : public SoftwareCentre {
public:
    [[nodiscard]] bool showPage(const QString&) override { return false; }
};

class NullStatusBar final : public StatusBar {
public:
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem(const StatusMenu&) override {
        return nullptr;
    }
};

class NullTimeChanges final : public TimeChanges {
public:
    void onChanged(std::function<void()>) override {}
};

class NullAutostart final : public Autostart {
public:
    [[nodiscard]] bool isAvailable() const override { return false; }

    [[nodiscard]] bool isOn() const override { return false; }

    void setOn(bool) override {}

    [[nodiscard]] Request request() const override { return Request::Settled; }

    void onChanged(std::function<void()>) override {}
};

} // namespace

PlatformServices makeNullServices(MainQueue& mainQueue) {
    return {
        .accessibilityRight = std::make_unique<NullAccessibilityRight>(),
        .eventTaps = std::make_unique<NullEventTapService>(),
        .desktopShortcut = std::make_unique<NullDesktopShortcut>(),
        .keyPoster = std::make_unique<NullKeyPoster>(),
        .pasteboard = std::make_unique<NullPasteboard>(mainQueue),
        .workspace = std::make_unique<NullWorkspace>(),
        .keyboardLayout = std::make_unique<NullKeyboardLayout>(),
        .windowTraits = std::make_unique<NullWindowTraits>(),
        .startupNotification = std::make_unique<NullStartupNotification>(),
        .appearance = std::make_unique<NullAppearance>(),
        .notifications = std::make_unique<NullNotifications>(mainQueue),
        .softwareCentre = std::make_unique<NullSoftwareCentre>(),
        .statusBar = std::make_unique<NullStatusBar>(),
        .timeChanges = std::make_unique<NullTimeChanges>(),
        .autostart = std::make_unique<NullAutostart>(),
        .installation = {},
        .states = {},
    };
}

} // namespace quorvane
