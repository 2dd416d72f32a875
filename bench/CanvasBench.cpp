// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "editor/Colors.h"
#include "editor/EditorCanvas.h"
#include "editor/Pixelation.h"
#include "editor/Stickers.h"
#include "editor/TextStyles.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <malloc.h>

#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize screen(3840, 2160), window(1440, 900);
constexpr int annotations = 200;

/// Of all kinds and styles, here and there.
std::vector<Annotation> sample()
{
    constexpr std::array kinds {Tool::Arrow, Tool::Rect, Tool::Ellipse, Tool::Line, Tool::Pen,
        Tool::Highlighter, Tool::Text, Tool::Step, Tool::Sticker, Tool::Blur, Tool::Redact};
    constexpr std::array colors {Colors::red, Colors::yellow, Colors::blue, Colors::green};
    std::mt19937 random(4);
    const auto number = [&random](int most) { return int(random() % unsigned(most)); };
    std::vector<Annotation> all;
    for (int at = 0; at < annotations; ++at) {
        Annotation it(kinds[std::size_t(at) % kinds.size()], colors[std::size_t(at) % 4], 4);
        it.a = QPointF(number(screen.width() - 400), number(screen.height() - 300));
        it.b = it.a + QPointF(60 + number(340), 60 + number(240));
        for (int step = 0; step < 200; ++step)
            it.points.append(it.a + QPointF(step * 1.7, 80 + 60 * std::sin(step / 12.)));
        it.text = Stickers::text()[at % 16];
        it.style = TextStyles::all()[std::size_t(at / 11) % 6].name;
        it.fontSize = 40;
        it.emoji = Stickers::emoji()[at % 40];
        all.push_back(it);
    }
    return all;
}

void mouse(EditorCanvas& canvas, QEvent::Type type, QPointF pixel)
{
    const QPointF at = canvas.view().toView(pixel);
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(type, at, canvas.viewport()->mapToGlobal(at),
        moves ? Qt::NoButton : Qt::LeftButton,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
    QApplication::sendEvent(canvas.viewport(), &event);
    QApplication::processEvents();
}

/// The processor time of a frame, in milliseconds.
void report(const QString& name, const Rounds& rounds, double target)
{
    const double median = rounds.medianCpu(name);
    std::printf("%-34s %8.2f %8.2f   target %.0f%s\n", qPrintable(name), median, rounds.cpu95(name),
        target, median > target ? " MISSED" : "");
}

void measureDrags(EditorCanvas& canvas, double magnification, int count)
{
    canvas.magnify(magnification);
    canvas.edit([](CanvasModel& model) { model.setTool(Tool::Select); });
    const QPointF middle
        = canvas.view().toPicture(QPointF(window.width() / 2., window.height() / 2.));
    Annotation it(Tool::Rect, Colors::red, 6);
    it.a = middle - QPointF(150, 100);
    it.b = middle + QPointF(150, 100);
    canvas.edit([&](CanvasModel& model) { model.document().commit(it); });
    QApplication::processEvents();
    const QString name = u"drag one of 200, at %1"_s.arg(magnification);
    int turn = 0;
    Rounds rounds;
    rounds.add(name, [&] {
        const int phase = ++turn % 20;
        mouse(
            canvas, QEvent::MouseMove, middle + QPointF(13, 7) * (phase < 10 ? phase : 20 - phase));
    });
    mouse(canvas, QEvent::MouseButtonPress, middle);
    rounds.run(count);
    mouse(canvas, QEvent::MouseButtonRelease, middle);
    report(name, rounds, 6);
}

void measurePen(EditorCanvas& canvas, int count)
{
    const QPointF start = canvas.view().toPicture({300, 300});
    for (const Tool tool : {Tool::Pen, Tool::Highlighter}) {
        canvas.edit([tool](CanvasModel& model) { model.setTool(tool); });
        const QString name
            = tool == Tool::Pen ? u"segment of a pen"_s : u"segment of a highlighter"_s;
        double angle = 0;
        Rounds rounds;
        rounds.add(name, [&] {
            angle += 0.05;
            mouse(canvas, QEvent::MouseMove,
                start + QPointF(300 * std::sin(angle), 200 * std::sin(1.7 * angle)));
        });
        mouse(canvas, QEvent::MouseButtonPress, start);
        for (int step = 0; step < 2000; ++step) // Of a long stroke.
            mouse(
                canvas, QEvent::MouseMove, start + QPointF(step % 400, 100 * std::sin(step / 40.)));
        rounds.run(count);
        mouse(canvas, QEvent::MouseButtonRelease, start);
        report(name, rounds, 3);
    }
}

void measureView(EditorCanvas& canvas, int count)
{
    struct Range {
        double from, to;
    };
    for (const Range range : {Range {0.26, 0.98}, Range {1.1, 6}}) {
        const QString name = u"zoom between %1 and %2"_s.arg(range.from).arg(range.to);
        double part = 0;
        Rounds rounds;
        rounds.add(name, [&] {
            part = part >= 1 ? 0 : part + 0.05;
            canvas.magnify(range.from * std::pow(range.to / range.from, part), {500, 400});
            QApplication::processEvents();
        });
        rounds.run(count);
        report(name, rounds, 8);
    }
    for (const double magnification : {0.5, 1., 1.7}) {
        canvas.magnify(magnification);
        QApplication::processEvents();
        const QString name = u"pan at %1"_s.arg(magnification);
        int turn = 0;
        Rounds rounds;
        rounds.add(name, [&] {
            const int phase = ++turn % 20;
            canvas.horizontalScrollBar()->setValue(100 + 23 * (phase < 10 ? phase : 20 - phase));
            canvas.verticalScrollBar()->setValue(50 + 11 * (phase < 10 ? phase : 20 - phase));
            QApplication::processEvents();
        });
        rounds.run(count);
        report(name, rounds, 8);
    }
}

void measureFlattening(const QImage& base, int count)
{
    CanvasDocument document(base);
    document.add(sample());
    const auto draw = [&](QImage& image) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const Mark& mark : document.annotations())
            mark->draw(painter, document.base());
    };
    QImage drawnOn = base.copy(), copied = base.copy();
    Rounds rounds;
    rounds.add(u"memcpy"_s,
        [&] { std::memcpy(copied.bits(), base.constBits(), std::size_t(base.sizeInBytes())); });
    rounds.add(u"draws"_s, [&] { draw(drawnOn); });
    rounds.add(u"flatten"_s, [&] { document.flattened(); });
    rounds.run(count);
    const double beyond = (rounds.medianCpu(u"flatten"_s) - rounds.medianCpu(u"draws"_s))
        / rounds.medianCpu(u"memcpy"_s);
    std::printf("flatten %.1f ms, its draws alone %.1f; beyond them %.2f memcpy   target 5\n",
        rounds.medianCpu(u"flatten"_s), rounds.medianCpu(u"draws"_s), beyond);
}

void measurePixelation(const QImage& base, int count)
{
    const QRect area(333, 217, 1920, 1080);
    QImage copied(area.size(), base.format());
    Rounds rounds;
    rounds.add(u"memcpy"_s, [&] {
        for (int y = 0; y < area.height(); ++y)
            std::memcpy(copied.scanLine(y), base.constScanLine(area.top() + y) + area.left() * 4,
                std::size_t(area.width()) * 4);
    });
    for (const int block : {8, 12, 16, 24, 72})
        rounds.add(QString::number(block), [&, block] { pixelated(base, area, block); });
    rounds.run(count);
    for (const int block : {8, 12, 16, 24, 72})
        std::printf("pixelated in blocks of %d: %.2f ms, %.2f memcpy   target 2 from 16 on\n",
            block, rounds.medianCpu(QString::number(block)),
            rounds.ratio(QString::number(block), u"memcpy"_s));
}

void measureUndo(const QImage& base)
{
    CanvasModel model(base);
    model.document().add(sample());
    const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    model.setTool(Tool::Select);
    for (int step = 0; step < 1000; ++step) {
        model.document().select(std::size_t(step % annotations));
        model.key(Qt::Key_Right, {});
    }
    const std::size_t after = mallinfo2().uordblks + mallinfo2().hblkhd;
    std::printf("1000 undo steps of %zu: %.1f MiB   target 64\n",
        std::as_const(model).document().undoSteps(), double(after - before) / (1 << 20));
}

} // namespace

// usage: CanvasBench [ROUNDS]
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int count = std::max(2, QApplication::arguments().value(1, u"60"_s).toInt());
    const QImage base = drawScreen(ScreenContent::Desk, screen);
    EditorCanvas canvas(base);
    canvas.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    canvas.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    canvas.resize(window);
    canvas.edit([](CanvasModel& model) { model.document().add(sample()); });
    canvas.show();
    QApplication::processEvents();
    std::printf("%-34s %8s %8s\n", "", "cpu ms", "p95");
    for (const double magnification : {0.35, 1., 2.})
        measureDrags(canvas, magnification, count);
    canvas.magnify(1);
    measurePen(canvas, count);
    measureView(canvas, count);
    measureFlattening(base, std::max(2, count / 4));
    measurePixelation(base, count);
    measureUndo(base);
    return 0;
}
