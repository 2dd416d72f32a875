// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CallLater.h"
#include "platform/fake/FakePlatform.h"
#include "platform/fake/FakeSurfaceTraits.h"
#include "widgets/FloatingPanel.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

/// Time that passes when told.
class HandTime final {
public:
    CallLater callLater()
    {
        return [this](std::chrono::milliseconds time, QObject*, std::function<void()> call) {
            m_calls.emplace(m_now + time, std::move(call));
        };
    }

    void pass(std::chrono::milliseconds time)
    {
        const auto end = m_now + time;
        while (!m_calls.empty() && m_calls.begin()->first <= end) {
            const auto next = m_calls.extract(m_calls.begin());
            m_now = next.key();
            next.mapped()();
        }
        m_now = end;
    }

private:
    std::chrono::milliseconds m_now {0};
    std::multimap<std::chrono::milliseconds, std::function<void()>> m_calls;
};

/// What surfaces need, without a desktop.
class SurfaceTest : public testing::Test {
protected:
    SurfaceTest()
    {
        prefs.registerDefaults();
        skins.apply();
    }

    static QList<QWidget*> shown()
    {
        QList<QWidget*> panels;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->isVisible())
                panels << widget;
        return panels;
    }

    QTemporaryDir folder;
    Prefs prefs {Folders {.configuration = folder.path()}, Prefs::Watch::Nothing};
    FakeAppearance appearance;
    Skins skins {prefs, appearance};
    Themes themes {skins, appearance};
    FakeSurfaceTraits surfaces;
    Surroundings surroundings {themes, surfaces};
    HandTime time;
};
