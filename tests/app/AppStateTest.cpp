// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/AppState.h"

#include "platform/fake/FakePlatform.h"
#include "tests/TestFiles.h"
#include "tests/TestUser.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using Outcome = CaptureReport::Outcome;

namespace {

const Application editorApp {u"org.example.editor"_s, u"Editor"_s, 77};

/// The coordinator with a fake platform and rooms that write down when they are passed.
class AppStateTest : public testing::Test, protected TestUser {
protected:
    AppStateTest()
    {
        prefs.set(Prefs::keys.saveFolder, path(u"shots"_s));
        stages.closePreviews = [this] { steps << u"closePreviews"_s; };
        stages.showPermissionWindow = [this] { steps << u"permission"_s; };
        stages.playShutter = [this] { steps << u"shutter"_s; };
        stages.playEffect = [this](QRectF area, const QImage&) {
            steps << u"effect %1,%2"_s.arg(area.x()).arg(area.y());
        };
        stages.countCapture = [this] { steps << u"count"_s; };
        stages.countTextCapture = [this] { steps << u"countText"_s; };
        stages.addToHistory = [this](const Shot&, const QByteArray& png, const QString& path) {
            steps << (platform.fakeClipboard().png == png ? u"history, copied"_s : u"history"_s);
            historyPath = path;
            return u"id-1"_s;
        };
        stages.openEditor
            = [this](const FinishedCapture& last) { steps << u"editor "_s + last.historyId; };
        stages.showPreview = [this](const FinishedCapture&, const QString& info) {
            steps << u"preview "_s + info;
        };
        stages.showHistory = [this] { steps << u"historyWindow"_s; };
        stages.showToast = [this](const ToastMessage& toast) { toasts << toast; };
    }

    AppState& state()
    {
        if (!m_state) {
            m_state = std::make_unique<AppState>(platform, prefs, hotkeys, stages);
            m_state->start();
        }
        return *m_state;
    }

    CaptureReport capture(CaptureKind kind)
    {
        auto report = state().captureAndReport(kind).wait();
        EXPECT_TRUE(report);
        return report ? *report : CaptureReport {};
    }

    QStringList saved() const
    {
        return QDir(prefs.saveFolder()).entryList(QDir::Files | QDir::Hidden);
    }

    FakePlatform platform;
    HotkeyCenter hotkeys {*platform.hotkeys};
    CaptureStages stages;
    QStringList steps;
    QList<ToastMessage> toasts;
    QString historyPath;

private:
    std::unique_ptr<AppState> m_state;
};

Window window(WindowId id, QRect frame, const Application& application)
{
    return {id, {}, frame, 0, true, application};
}

} // namespace

TEST_F(AppStateTest, finishesInOrderAndEncodesOnce)
{
    platform.fakeCapture().list = {window(9, {0, 0, 50, 50}, {ownApplicationId, {}, 5})};
    platform.fakeDisplays().displays[0].scale = 2;
    const auto report = capture(CaptureKind::Screen);
    EXPECT_THAT(steps,
        testing::ElementsAre(u"closePreviews"_s, u"shutter"_s, u"effect 0,0"_s, u"count"_s,
            u"history, copied"_s, u"preview 400 × 300  •  Copied  •  Saved"_s));
    EXPECT_EQ(report.outcome, Outcome::Done);
    EXPECT_EQ(report.app, u"Screen"_s);
    EXPECT_EQ(report.historyId, u"id-1"_s);
    EXPECT_EQ(report.path, historyPath);

    EXPECT_EQ(contentOf(report.path), platform.fakeClipboard().png);
    EXPECT_EQ(platform.fakeClipboard().image.deviceIndependentSize(), QSizeF(200, 150));
    const auto& asked = platform.fakeCapture().asked;
    ASSERT_EQ(asked.size(), 1);
    EXPECT_THAT(asked[0].excluded, testing::ElementsAre(9u)) << "windows of ours are left out";
    EXPECT_EQ(asked[0].pointer, Pointer::Hidden);

    state().editLast();
    EXPECT_EQ(steps.last(), u"editor id-1"_s);
}

TEST_F(AppStateTest, obeysThePreferences)
{
    prefs.set(Prefs::keys.copyToClipboard, false);
    prefs.set(Prefs::keys.autoSave, false);
    prefs.set(Prefs::keys.includeCursor, true);
    stages.addToHistory = {};
    capture(CaptureKind::Screen);
    EXPECT_EQ(steps.last(), u"preview 400 × 300"_s);
    EXPECT_TRUE(platform.fakeClipboard().image.isNull());
    EXPECT_TRUE(saved().isEmpty());
    EXPECT_EQ(platform.fakeCapture().asked.last().pointer, Pointer::Drawn);

    prefs.set(Prefs::keys.autoSave, true);
    prefs.set(Prefs::keys.imageFormat, u"jpg"_s);
    prefs.set(Prefs::keys.afterCapture, u"none"_s);
    const auto report = capture(CaptureKind::Screen);
    EXPECT_TRUE(report.path.endsWith(u".jpg"_s));
    EXPECT_EQ(QImage(report.path).size(), QSize(400, 300));
    EXPECT_EQ(steps.last(), u"count"_s) << "nothing is shown";
    ASSERT_TRUE(state().last());
    EXPECT_EQ(state().last()->path, report.path);

    prefs.set(Prefs::keys.afterCapture, u"editor"_s);
    capture(CaptureKind::Screen);
    EXPECT_EQ(steps.last(), u"editor "_s);
}

TEST_F(AppStateTest, copiesAndRemembersWhatItCannotSave)
{
    put(path(u"shots"_s), "a file where the folder should be");
    const auto report = capture(CaptureKind::Screen);
    EXPECT_EQ(report.outcome, Outcome::Done);
    EXPECT_TRUE(report.path.isEmpty());
    EXPECT_FALSE(report.reason.isEmpty());
    EXPECT_EQ(steps.last(), u"preview 400 × 300  •  Copied  •  Save failed"_s);
    EXPECT_FALSE(platform.fakeClipboard().png.isEmpty());
    EXPECT_TRUE(toasts.isEmpty());
    EXPECT_EQ(state().last()->historyId, u"id-1"_s);
}

TEST_F(AppStateTest, dropsARequestWhileACaptureRunsAndWaitsForTheScreenToSettle)
{
    platform.fakeCapture().holdsBack = true;
    QElapsedTimer timer;
    timer.start();
    auto running = state().captureAndReport(CaptureKind::Screen);
    EXPECT_TRUE(state().isBusy());
    EXPECT_EQ(state().captureAndReport(CaptureKind::Screen).wait()->outcome, Outcome::Busy);
    while (platform.fakeCapture().asked.isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_GE(timer.elapsed(), 119);
    state().capture(CaptureKind::Window);
    EXPECT_THAT(steps, testing::ElementsAre(u"closePreviews"_s));

    platform.fakeCapture().answer(FakeScreenCapture::picture({40, 30}));
    EXPECT_EQ(running.wait()->outcome, Outcome::Done);
    EXPECT_FALSE(state().isBusy());
    EXPECT_EQ(platform.fakeCapture().asked.size(), 1);
}

TEST_F(AppStateTest, takesTheFrontWindowOfTheProgramLastWorkedIn)
{
    platform.fakeActive().active = editorApp;
    platform.fakeCapture().list = {window(1, {0, 0, 200, 100}, editorApp),
        window(2, {10, 10, 100, 20}, editorApp), window(3, {0, 0, 300, 300}, {{}, u"X"_s, 5})};
    platform.fakeCapture().order = {{3, 0}, {2, 1}, {1, 2}};
    state();
    Q_EMIT platform.fakeActive().activated({ownApplicationId, u"Pixmallow"_s, 1});
    const auto report = capture(CaptureKind::Window);
    EXPECT_EQ(report.app, u"Editor"_s);
    EXPECT_EQ(report.size, QSize(100, 20));
    EXPECT_EQ(platform.fakeCapture().asked.last().window, 2u);
    EXPECT_EQ(platform.fakeCapture().asked.last().shadow, WindowShadow::Kept);
    EXPECT_EQ(state().last()->shot.area, QRectF(10, 270, 100, 20));

    Q_EMIT platform.fakeActive().activated({{}, {}, 5}); // Unknown, so not ours.
    EXPECT_EQ(capture(CaptureKind::Window).size, QSize(300, 300));
}

TEST_F(AppStateTest, saysThatThereIsNoWindow)
{
    const ToastMessage toast {u"No window to capture"_s,
        u"Click the window you want first, then press the shortcut."_s, u"macwindow"_s};
    EXPECT_EQ(capture(CaptureKind::Window).outcome, Outcome::Failed);
    Q_EMIT platform.fakeActive().activated(editorApp);
    EXPECT_EQ(capture(CaptureKind::Window).outcome, Outcome::Failed);
    EXPECT_THAT(toasts, testing::ElementsAre(toast, toast));
    EXPECT_FALSE(state().last());
    state().editLast();
    EXPECT_EQ(steps.last(), u"historyWindow"_s);
}

TEST_F(AppStateTest, toastsAFailureWithItsReason)
{
    platform.fakeCapture().failure = Error::failed(u"The server burnt."_s);
    const auto report = capture(CaptureKind::Screen);
    EXPECT_EQ(report.outcome, Outcome::Failed);
    EXPECT_THAT(toasts,
        testing::ElementsAre(ToastMessage {
            u"Capture failed"_s, u"The server burnt."_s, u"exclamationmark.triangle.fill"_s}));
    EXPECT_FALSE(state().isBusy());

    platform.fakeCapture().failure.reset();
    platform.fakeDisplays().displays.clear();
    EXPECT_EQ(capture(CaptureKind::Screen).outcome, Outcome::Cancelled)
        << "no screen is no failure";
    EXPECT_EQ(toasts.size(), 1);
}

TEST_F(AppStateTest, listensToTheShortcutsAsTheyArePreferred)
{
    auto& system = platform.fakeHotkeys();
    system.refused = {KeyCombo::fromText(u"19:4608:2")->chord()};
    EXPECT_EQ(state().hotkeyLabel(CaptureKind::Screen), u"⌃⇧3"_s);
    EXPECT_EQ(system.registered.size(), 4) << "a refused one leaves the others alone";
    EXPECT_EQ(state().refusedHotkeys(), QList<CaptureKind> {CaptureKind::Window});
    system.press(system.registered.key(KeyCombo::fromText(u"20:4608:3")->chord()));
    EXPECT_FALSE(state().isBusy()) << "not within the event";
    while (!state().last())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);

    prefs.set(Prefs::keys.hkWindow, u""_s);
    EXPECT_TRUE(state().refusedHotkeys().isEmpty());

    prefs.set(Prefs::keys.hkScreen, u""_s);
    prefs.set(Prefs::keys.captureOpenMenus, true);
    EXPECT_EQ(system.registered.size(), 3);
    EXPECT_TRUE(system.seesGrabbedKeyboards);
    EXPECT_EQ(state().hotkeyLabel(CaptureKind::Screen), QString());
}

TEST_F(AppStateTest, asksForPermissionFirst)
{
    platform.fakeCapture().isPermitted = false;
    EXPECT_EQ(capture(CaptureKind::Screen).outcome, Outcome::Unavailable);
    EXPECT_THAT(steps, testing::ElementsAre(u"permission"_s, u"permission"_s))
        << "start and capture";
    EXPECT_FALSE(state().isBusy());
}

TEST_F(AppStateTest, offersOnlyWhatIsConnected)
{
    for (const auto kind : {CaptureKind::Region, CaptureKind::Delayed, CaptureKind::Text}) {
        EXPECT_FALSE(state().isAvailable(kind));
        const auto report = capture(kind);
        EXPECT_EQ(report.outcome, Outcome::Unavailable);
        EXPECT_TRUE(report.reason.contains(u"not available"_s));
    }
    EXPECT_TRUE(steps.isEmpty());
}

TEST_F(AppStateTest, endsSilentlyWhenTheUserCancels)
{
    Pending<void>::Answer countdown;
    stages.countDown = [&](int seconds) {
        steps << u"countDown %1"_s.arg(seconds);
        auto [pending, answer] = Pending<void>::ask();
        countdown = std::move(answer);
        return std::move(pending);
    };
    stages.selectRegion
        = [](const RegionQuestion&) { return Pending<RegionResult>::answered(Error::cancelled()); };
    EXPECT_EQ(capture(CaptureKind::Region).outcome, Outcome::Cancelled);

    auto running = state().captureAndReport(CaptureKind::Delayed);
    while (!countdown)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    countdown = {}; // Whoever counts dies silent.
    EXPECT_EQ(running.wait()->outcome, Outcome::Cancelled);
    EXPECT_EQ(steps.last(), u"countDown 3"_s);
    EXPECT_TRUE(toasts.isEmpty());
    EXPECT_FALSE(state().isBusy());
}

TEST_F(AppStateTest, cutsTheSelectedRegionOut)
{
    RegionQuestion asked;
    stages.selectRegion = [&](const RegionQuestion& question) {
        asked = question;
        return Pending<RegionResult>::answered(RegionResult {0, QRectF(100, 50, 30, 20)});
    };
    prefs.set(Prefs::keys.includeCursor, true);
    platform.fakeCapture().list
        = {window(1, {90, 200, 100, 100}, editorApp), window(2, {0, 0, 40, 100}, editorApp)};
    const auto report = capture(CaptureKind::Region);
    EXPECT_EQ(report.size, QSize(30, 20));
    EXPECT_EQ(report.app, u"Editor"_s);
    EXPECT_THAT(asked.windows, testing::ElementsAre(QRect(90, 200, 100, 100)));
    EXPECT_TRUE(asked.purpose.isEmpty());
    EXPECT_EQ(platform.fakeCapture().asked.last().pointer, Pointer::Drawn);
}

TEST_F(AppStateTest, copiesRecognisedText)
{
    Result<OCR::Result> recognised = OCR::Result {u"one\ntwo\nthree"_s, 3};
    QString purpose;
    stages.selectRegion = [&](const RegionQuestion& question) {
        purpose = question.purpose;
        return Pending<RegionResult>::answered(RegionResult {0, QRectF(0, 0, 30, 20)});
    };
    stages.recogniseText = [&](const Shot&) { return Pending<OCR::Result>::answered(recognised); };
    prefs.set(Prefs::keys.includeCursor, true);
    const auto report = capture(CaptureKind::Text);
    EXPECT_EQ(purpose, u"Select the text to copy"_s);
    EXPECT_EQ(platform.fakeCapture().asked.last().pointer, Pointer::Hidden);
    EXPECT_EQ(report.text, u"one\ntwo\nthree"_s);
    EXPECT_EQ(platform.fakeClipboard().text, report.text);
    EXPECT_THAT(steps, testing::ElementsAre(u"closePreviews"_s, u"shutter"_s, u"countText"_s));
    EXPECT_FALSE(state().last()) << "a text capture is never the last one";
    EXPECT_TRUE(saved().isEmpty());

    recognised = OCR::Result {};
    EXPECT_EQ(capture(CaptureKind::Text).outcome, Outcome::Failed);
    recognised = Error::failed(u"No language data."_s);
    capture(CaptureKind::Text);
    EXPECT_THAT(toasts,
        testing::ElementsAre(ToastMessage {u"Text copied — 3 lines"_s, {}, u"text.viewfinder"_s,
                                 std::chrono::seconds(5)},
            ToastMessage {u"No text found"_s, u"Try selecting a larger or sharper area."_s,
                u"text.magnifyingglass"_s},
            ToastMessage {u"Couldn't read text"_s, u"No language data."_s,
                u"exclamationmark.triangle.fill"_s}));
    EXPECT_EQ(textCopiedToast(1).title, u"Text copied — 1 line"_s);
}
