// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <cstdio>
#include <utility>

namespace {

/// Takes files that are dropped on it; tells of each step above it, and the paths of the dropped.
class Target final : public QWidget {
public:
    Target() { setAcceptDrops(true); }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override
    {
        if (event->mimeData()->hasUrls())
            event->acceptProposedAction();
    }
    void dragMoveEvent(QDragMoveEvent*) override { tell("over"); }
    void dropEvent(QDropEvent* event) override
    {
        for (const QUrl& url : event->mimeData()->urls())
            tell("dropped " + url.toLocalFile().toLocal8Bit());
        event->acceptProposedAction();
    }
    void paintEvent(QPaintEvent*) override
    {
        if (!std::exchange(m_told, true))
            tell("ready");
    }

private:
    static void tell(const QByteArray& line)
    {
        std::printf("%s\n", line.constData());
        std::fflush(stdout);
    }

    bool m_told = false;
};

} // namespace

/// A window of another program, 300 points square at 100, 100, that files can be dropped on.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Target target;
    target.setGeometry(100, 100, 300, 300);
    target.show();
    return QApplication::exec();
}
