// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Colors.h"
#include "editor/EditorCanvas.h"

#include <QApplication>

using namespace Qt::StringLiterals;

// A canvas to be looked at and tried out.
// usage: canvas-demo PICTURE [MAGNIFICATION]
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto arguments = QApplication::arguments();
    EditorCanvas canvas(QImage(arguments.value(1)));
    const auto made = [](Tool kind, const QColor& color, QPointF a, QPointF b) {
        Annotation it(kind, color, 5);
        it.a = a;
        it.b = b;
        return it;
    };
    std::vector<Annotation> all;
    all.push_back(made(Tool::Blur, Colors::red, {120, 420}, {520, 560}));
    all.push_back(made(Tool::Rect, Colors::red, {560, 120}, {980, 330}));
    all.push_back(made(Tool::Arrow, Colors::red, {430, 520}, {620, 345}));
    for (int step = 0; step < 3; ++step) {
        all.push_back(made(Tool::Step, Colors::blue, {600. + 90 * step, 420}, {}));
        all.back().number = step + 1;
    }
    all.push_back(made(Tool::Sticker, Colors::red, {860, 400}, {1000, 540}));
    all.back().rotation = 8;
    all.push_back(made(Tool::Text, Colors::pink, {610, 170}, {}));
    all.back().text = u"look here ✨"_s;
    all.back().style = u"Neon"_s;
    all.back().fontSize = 48;
    canvas.edit([&](CanvasModel& model) {
        model.document().add(all);
        model.document().commit(made(Tool::Ellipse, Colors::green, {150, 120}, {460, 300}));
    });
    canvas.resize(1100, 700);
    canvas.magnify(arguments.value(2, u"1"_s).toDouble());
    canvas.show();
    return QApplication::exec();
}
