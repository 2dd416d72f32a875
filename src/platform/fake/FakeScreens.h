// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Bitmap.h"
#include "platform/ScreenCapture.h"

#include <algorithm>

class FakeDisplays final : public Displays {
public:
    QList<DisplayInfo> list() const override { return displays; }
    QPoint pointer() const override { return position; }

    QList<DisplayInfo> displays {
        {1, QStringLiteral("screen"), QRect(0, 0, 400, 300), 1, QRectF(0, 0, 400, 300)}};
    QPoint position;
};

/// Remembers what it was asked, and answers at once with plain pictures unless told to hold back.
class FakeScreenCapture final : public ScreenCapture {
public:
    struct Asked {
        QRect native; ///< Of an area; null of a window.
        WindowId window = 0;
        QList<WindowId> excluded;
        Pointer pointer = Pointer::Hidden;
        WindowShadow shadow = WindowShadow::Dropped;
    };

    bool permitted() const override { return isPermitted; }
    Result<QList<Window>> windows() override { return list; }
    QHash<WindowId, int> frontToBackOrder() override { return order; }

    Pending<Frozen> area(QRect native, QList<WindowId> excluded, Pointer pointer) override
    {
        asked.push_back({native, 0, excluded, pointer, {}});
        return reply(native.size());
    }
    Pending<Frozen> window(WindowId id, WindowShadow shadow, Pointer pointer) override
    {
        asked.push_back({{}, id, {}, pointer, shadow});
        for (const auto& each : list)
            if (each.id == id)
                return reply(each.frame.size());
        return Pending<Frozen>::answered(Error::failed(QStringLiteral("No such window.")));
    }

    static Frozen picture(QSize size)
    {
        Bitmap bitmap(size, PixelFormat::Rgb32);
        std::fill_n(bitmap.row(0), qsizetype(size.width()) * size.height(), 0xff336699u);
        return std::make_shared<BitmapRows>(bitmap);
    }

    bool isPermitted = true;
    bool holdsBack = false;
    std::optional<Error> failure;
    QList<Window> list;
    QHash<WindowId, int> order;
    QList<Asked> asked;
    Pending<Frozen>::Answer answer; ///< To the last question, while it holds back.

private:
    Pending<Frozen> reply(QSize size)
    {
        if (failure)
            return Pending<Frozen>::answered(*failure);
        if (!holdsBack)
            return Pending<Frozen>::answered(picture(size));
        auto [pending, held] = Pending<Frozen>::ask();
        answer = std::move(held);
        return std::move(pending);
    }
};
