// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "editor/EditorCanvas.h"
#include "editor/EditorWindow.h"
#include "tests/editor/EditorWorld.h"
#include "widgets/ApplicationLook.h"

#include <QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct World : EditorWorld {
    ApplicationLook look {{themes, surfaces}};
};

/// Whether a widget was painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    void wait() const
    {
        while (!m_isPainted)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QApplication::processEvents();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_isPainted |= event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_isPainted = false;
};

void measure(World& world, QSize size, double target, int count)
{
    const QImage image = drawScreen(ScreenContent::Desk, size);
    std::unique_ptr<EditorWindow> window;
    const auto open = [&] {
        window = std::make_unique<EditorWindow>(world.means, FinishedCapture {{image, 1, {}, {}}});
        const PaintWatch canvas(*window->findChild<EditorCanvas*>()->viewport());
        window->open();
        canvas.wait();
    };
    const QString name = u"%1 × %2"_s.arg(size.width()).arg(size.height());
    Rounds rounds;
    rounds.add(u"open"_s, open);
    rounds.add(u"close unchanged"_s, [&] {
        window->close();
        QApplication::processEvents();
    });
    rounds.run(count);
    std::printf(
        "%s: open to first paint %.1f ms (95 %% %.1f)   target %.0f%s; close unchanged %.1f ms\n",
        qPrintable(name), rounds.medianCpu(u"open"_s), rounds.cpu95(u"open"_s), target,
        rounds.medianCpu(u"open"_s) > target ? " MISSED" : "",
        rounds.medianCpu(u"close unchanged"_s));
}

} // namespace

// usage: EditorBench [ROUNDS]
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int count = std::max(2, QApplication::arguments().value(1, u"20"_s).toInt());
    World world;
    measure(world, {3840, 2160}, 60, count);
    measure(world, {5120, 2880}, 120, count);
    return 0;
}
