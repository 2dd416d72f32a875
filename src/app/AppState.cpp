// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/AppState.h"

#include "base/Words.h"
#include "base/Worker.h"
#include "capture/Files.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

AppState* s_shared = nullptr;

/// Long enough for the panel or menu that a capture was started from to be gone.
constexpr auto settleTime = 120ms;

const QString failureSymbol = u"exclamationmark.triangle.fill"_s;

/// Answers when that time has passed; to the millisecond, which a usual timer is not.
Pending<void> settled()
{
    auto [pending, answer] = Pending<void>::ask();
    const auto shared = std::make_shared<Pending<void>::Answer>(std::move(answer));
    QTimer::singleShot(settleTime, Qt::PreciseTimer, qApp, [shared] { (*shared)({}); });
    return std::move(pending);
}

/// Passes through a room, if it is connected.
template <typename... Parameters, typename... Arguments>
void pass(const std::function<void(Parameters...)>& stage, Arguments&&... arguments)
{
    if (stage)
        stage(std::forward<Arguments>(arguments)...);
}

} // namespace

AppState::AppState(
    DesktopPlatform& platform, Prefs& prefs, HotkeyCenter& hotkeys, CaptureStages stages)
    : m_platform(platform)
    , m_prefs(prefs)
    , m_hotkeys(hotkeys)
    , m_stages(std::move(stages))
    , m_shots(*platform.displays, *platform.capture, prefs)
{
}

AppState& AppState::shared()
{
    Q_ASSERT(s_shared);
    return *s_shared;
}

void AppState::install()
{
    s_shared = this;
}

void AppState::start()
{
    if (const auto application = m_platform.activeApplication->current())
        follow(*application);
    connect(
        m_platform.activeApplication.get(), &ActiveApplication::activated, this, &AppState::follow);
    connect(&m_prefs, &Prefs::changed, this, &AppState::adoptPreference);
    registerHotkeys();
    if (!m_platform.capture->permitted())
        pass(m_stages.showPermissionWindow);
}

void AppState::follow(const Application& application)
{
    if (application.id != ownApplicationId)
        m_lastOtherApp = application;
}

void AppState::adoptPreference(const QString& key)
{
    if (key.startsWith(u"hk."_s) || key == QLatin1String(Prefs::keys.captureOpenMenus.name))
        registerHotkeys();
}

void AppState::registerHotkeys()
{
    m_hotkeys.unregisterAll();
    m_refused.clear();
    for (const auto& info : captureKinds) {
        const auto combo = hotkey(info.kind);
        if (combo && !m_hotkeys.registerCombo(*combo, [this, kind = info.kind] { capture(kind); }))
            m_refused << info.kind;
    }
    m_platform.hotkeys->setSeesGrabbedKeyboards(m_prefs.get(Prefs::keys.captureOpenMenus));
    Q_EMIT hotkeysRegistered();
}

std::optional<KeyCombo> AppState::hotkey(CaptureKind kind) const
{
    return KeyCombo::fromText(m_prefs.get(*Prefs::keys.hotkey(QString(infoOf(kind).key))));
}

QString AppState::hotkeyLabel(CaptureKind kind) const
{
    const auto combo = hotkey(kind);
    return combo ? combo->display() : QString();
}

bool AppState::isPermitted() const
{
    return m_platform.capture->permitted();
}

void AppState::askForPermission()
{
    pass(m_stages.showPermissionWindow);
}

bool AppState::isAvailable(CaptureKind kind) const
{
    switch (kind) {
    case CaptureKind::Region:
        return bool(m_stages.selectRegion);
    case CaptureKind::Delayed:
        return bool(m_stages.countDown);
    case CaptureKind::Text:
        return m_stages.selectRegion && m_stages.recogniseText;
    case CaptureKind::Window:
    case CaptureKind::Screen:
        return true;
    }
    return false;
}

void AppState::capture(CaptureKind kind)
{
    std::ignore = captureAndReport(kind);
}

Pending<CaptureReport> AppState::captureAndReport(CaptureKind kind)
{
    using Outcome = CaptureReport::Outcome;
    if (m_busy)
        return Pending<CaptureReport>::answered(
            CaptureReport {Outcome::Busy, tr("Another capture is running.")});
    if (!isAvailable(kind))
        return Pending<CaptureReport>::answered(
            CaptureReport {Outcome::Unavailable, tr("This kind of capture is not available.")});
    if (!m_platform.capture->permitted()) {
        pass(m_stages.showPermissionWindow);
        return Pending<CaptureReport>::answered(
            CaptureReport {Outcome::Unavailable, tr("The screen may not be captured yet.")});
    }
    m_busy = true;
    m_report = {};
    Q_EMIT captureBegan();
    pass(m_stages.closePreviews);
    auto [pending, answer] = Pending<CaptureReport>::ask();
    run(kind, std::move(answer));
    return std::move(pending);
}

QCoro::Task<> AppState::run(CaptureKind kind, Pending<CaptureReport>::Answer answer)
{
    std::ignore = co_await settled();
    const auto shot = co_await take(kind);
    if (shot && kind == CaptureKind::Text)
        co_await copyText(*shot);
    else if (shot)
        co_await finish(*shot);
    else if (!shot.error().isCancelled())
        fail({tr("Capture failed"), shot.error().message, failureSymbol});
    m_busy = false;
    answer(m_report);
    Q_EMIT captureEnded(m_report);
}

QCoro::Task<Result<Shot>> AppState::take(CaptureKind kind)
{
    const QString otherApp = m_lastOtherApp ? m_lastOtherApp->name : QString();
    switch (kind) {
    case CaptureKind::Region:
        co_return co_await m_shots.region(m_stages.selectRegion, QString(), otherApp);
    case CaptureKind::Text:
        co_return co_await m_shots.region(
            m_stages.selectRegion, tr("Select the text to copy"), otherApp);
    case CaptureKind::Window:
        co_return co_await captureFrontWindow();
    case CaptureKind::Delayed: {
        const auto counted = co_await m_stages.countDown(m_prefs.get(Prefs::keys.delaySeconds));
        if (!counted)
            co_return counted.error();
        break;
    }
    case CaptureKind::Screen:
        break;
    }
    co_return co_await m_shots.screenUnderMouse();
}

QCoro::Task<Result<Shot>> AppState::captureFrontWindow()
{
    std::optional<Window> target;
    if (m_lastOtherApp) {
        const auto front = m_shots.frontWindow(*m_lastOtherApp);
        if (!front)
            co_return front.error();
        target = *front;
    }
    if (!target) {
        fail({tr("No window to capture"),
            tr("Click the window you want first, then press the shortcut."), u"macwindow"_s});
        co_return Error::cancelled();
    }
    co_return co_await m_shots.window(*target);
}

QCoro::Task<> AppState::finish(Shot shot)
{
    const auto encoding = pngOf(shot); // On its way while what follows is seen and heard.
    pass(m_stages.playShutter);
    if (shot.area)
        pass(m_stages.playEffect, *shot.area, shot.image);
    pass(m_stages.countCapture);

    const bool copies = m_prefs.get(Prefs::keys.copyToClipboard);
    const bool saves = m_prefs.get(Prefs::keys.autoSave);
    const QString format = m_prefs.imageFormat();
    const QByteArray png = co_await encoding;

    FinishedCapture finished {shot};
    QStringList notes;
    if (copies) {
        Files::copy(*m_platform.clipboard, shot.image, shot.scale, png);
        notes << tr("Copied");
    }
    if (saves) {
        QByteArray bytes = png;
        if (format != u"png"_s)
            bytes = co_await encoded(shot, format);
        finished.path = co_await saved(bytes, format);
        notes << (finished.path.isEmpty() ? tr("Save failed") : tr("Saved"));
    }
    if (m_stages.addToHistory)
        finished.historyId = m_stages.addToHistory(shot, png, finished.path);

    m_report = {CaptureReport::Outcome::Done, m_report.reason, finished.path, shot.image.size(),
        shot.scale, shot.app, finished.historyId, {}};
    m_last = finished;
    Q_EMIT lastChanged();
    present(finished, notes);
}

/// Of what anybody takes as PNG; empty if nobody does.
QCoro::Task<QByteArray> AppState::pngOf(Shot shot)
{
    if (m_prefs.get(Prefs::keys.copyToClipboard) || m_stages.addToHistory
        || (m_prefs.get(Prefs::keys.autoSave) && m_prefs.imageFormat() == u"png"_s))
        co_return co_await encoded(shot, u"png"_s);
    co_return QByteArray();
}

/// Encodes off the main thread, so that the effect keeps playing; empty if it fails.
QCoro::Task<QByteArray> AppState::encoded(Shot shot, QString format)
{
    const ImageType type = Files::imageType(format);
    auto work = [shot, type] { return Files::encode(shot.image, type, shot.scale); };
    const auto bytes = co_await runOnWorker(work);
    if (!bytes)
        m_report.reason = bytes.error().message;
    co_return bytes ? *bytes : QByteArray();
}

/// The path of a new file in the save folder; empty if it could not be written.
QCoro::Task<QString> AppState::saved(QByteArray bytes, QString format)
{
    if (bytes.isEmpty())
        co_return QString();
    const QString folder = m_prefs.saveFolder();
    const auto now = QDateTime::currentDateTime();
    auto work = [=] { return Files::save(bytes, folder, format, u"Screenshot"_s, now); };
    const auto path = co_await runOnWorker(work);
    if (!path)
        m_report.reason = path.error().message;
    co_return path ? *path : QString();
}

void AppState::present(const FinishedCapture& finished, const QStringList& notes)
{
    const QString after = m_prefs.get(Prefs::keys.afterCapture);
    if (after == u"editor"_s)
        pass(m_stages.openEditor, finished);
    else if (after == u"preview"_s || after.isEmpty())
        pass(m_stages.showPreview, finished, infoLine(finished.shot.image.size(), notes));
}

QCoro::Task<> AppState::copyText(Shot shot)
{
    const auto recognised = co_await m_stages.recogniseText(shot);
    if (!recognised) {
        if (!recognised.error().isCancelled())
            fail({tr("Couldn't read text"), recognised.error().message, failureSymbol});
        co_return;
    }
    if (recognised->text.isEmpty()) {
        fail({tr("No text found"), tr("Try selecting a larger or sharper area."),
            u"text.magnifyingglass"_s});
        co_return;
    }
    m_platform.clipboard->setText(recognised->text);
    pass(m_stages.playShutter);
    pass(m_stages.countTextCapture);
    pass(m_stages.showToast, textCopiedToast(recognised->lines));
    m_report = {CaptureReport::Outcome::Done, {}, {}, shot.image.size(), shot.scale, shot.app, {},
        recognised->text};
}

void AppState::editLast()
{
    if (m_last)
        pass(m_stages.openEditor, *m_last);
    else
        pass(m_stages.showHistory);
}

void AppState::showHistory()
{
    pass(m_stages.showHistory);
}

void AppState::showGallery()
{
    pass(m_stages.showGallery);
}

void AppState::show(Control::Show::What window)
{
    switch (window) {
    case Control::Show::What::History:
        return showHistory();
    case Control::Show::What::Gallery:
        return showGallery();
    case Control::Show::What::Settings:
        Q_EMIT settingsRequested();
    }
}

void AppState::fail(const ToastMessage& toast)
{
    m_report.outcome = CaptureReport::Outcome::Failed;
    m_report.reason = toast.message.isEmpty() ? toast.title : toast.title + u": "_s + toast.message;
    pass(m_stages.showToast, toast);
}

QString infoLine(QSize pixels, const QStringList& notes)
{
    const QString size = u"%1 × %2"_s.arg(pixels.width()).arg(pixels.height());
    return (QStringList {size} + notes).join(u"  •  "_s);
}

ToastMessage textCopiedToast(int lines)
{
    const QString title = lines == 1 ? Words::tr("Text copied — 1 line")
                                     : Words::tr("Text copied — %n lines", nullptr, lines);
    return {title, {}, u"text.viewfinder"_s, std::chrono::seconds(5)};
}
