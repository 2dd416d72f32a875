// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/ShotTaker.h"

#include "capture/Capture.h"
#include "capture/Pixels.h"

using namespace Qt::StringLiterals;

Pointer ShotTaker::preferredPointer() const
{
    return m_prefs.get(Prefs::keys.includeCursor) ? Pointer::Drawn : Pointer::Hidden;
}

QCoro::Task<Result<QImage>> ShotTaker::freeze(
    QRect native, QList<WindowId> excluded, Pointer pointer)
{
    const auto frozen = co_await m_capture.area(native, excluded, pointer);
    if (!frozen)
        co_return frozen.error();
    co_return readImage(**frozen);
}

QCoro::Task<Result<Shot>> ShotTaker::screenUnderMouse()
{
    const auto display = Capture::screenUnder(m_displays.pointer(), m_displays.list());
    if (!display)
        co_return Error::cancelled();
    const auto windows = m_capture.windows();
    if (!windows)
        co_return windows.error();
    const auto own = ownWindows(*windows);
    const auto image = co_await freeze(display->native, own, preferredPointer());
    if (!image)
        co_return image.error();
    const Shot shot {*image, display->scale, u"Screen"_s, display->points};
    co_return shot;
}

Result<std::optional<Window>> ShotTaker::frontWindow(Application application)
{
    const auto windows = m_capture.windows();
    if (!windows)
        return windows.error();
    return Capture::frontWindow(
        *windows, m_capture.frontToBackOrder(), application, m_displays.list());
}

QCoro::Task<Result<Shot>> ShotTaker::window(Window window)
{
    const auto shadow
        = m_prefs.get(Prefs::keys.windowShadow) ? WindowShadow::Kept : WindowShadow::Dropped;
    const auto frozen = co_await m_capture.window(window.id, shadow, Pointer::Hidden);
    if (!frozen)
        co_return frozen.error();
    const auto image = readImage(**frozen);
    if (!image)
        co_return image.error();

    const auto displays = m_displays.list();
    const DisplayInfo* display = displayShowingMost(window.frame, displays);
    Shot shot {*image, Capture::scaleOf(window.frame, displays), window.application.name, {}};
    if (display)
        shot.area = Capture::toPoints(window.frame, *display);
    co_return shot;
}

QCoro::Task<Result<QList<FrozenScreen>>> ShotTaker::freezeAll(
    QList<WindowId> excluded, Pointer pointer)
{
    QList<FrozenScreen> screens;
    const auto displays = m_displays.list();
    for (const auto& display : displays) {
        const auto image = co_await freeze(display.native, excluded, pointer);
        if (!image)
            co_return image.error();
        const FrozenScreen screen {display, *image};
        screens.push_back(screen);
    }
    co_return screens;
}

QCoro::Task<Result<Shot>> ShotTaker::region(
    SelectRegion select, QString purpose, QString lastOtherApp)
{
    const auto windows = m_capture.windows();
    if (!windows)
        co_return windows.error();
    const auto own = ownWindows(*windows);
    const auto pointer = purpose.isEmpty() ? preferredPointer() : Pointer::Hidden;
    const auto screens = co_await freezeAll(own, pointer);
    if (!screens)
        co_return screens.error();
    if (screens->isEmpty())
        co_return Error::cancelled();

    const auto candidates
        = Capture::regionCandidates(*windows, m_capture.frontToBackOrder(), m_displays.list());
    RegionQuestion question {*screens, {}, purpose};
    for (const auto& window : candidates)
        question.windows.push_back(window.frame);
    const auto selected = co_await select(question);
    if (!selected)
        co_return selected.error();
    co_return Capture::crop(
        screens->at(selected->screenIndex), selected->rect, candidates, lastOtherApp);
}
