// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <cstdio>

namespace {

/// Takes files that are dropped on it and tells their paths.
class Target final : public QWidget {
public:
    Target() { setAcceptDrops(true); }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override
    {
        if (event->mimeData()->hasUrls())
            event->acceptProposedAction();
    }
    void dropEvent(QDropEvent* event) override
    {
        for (const QUrl& url : event->mimeData()->urls())
            std::printf("dropped %s\n", url.toLocalFile().toLocal8Bit().constData());
        std::fflush(stdout);
        event->acceptProposedAction();
    }
    void paintEvent(QPaintEvent*) override
    {
        if (m_told)
            return;
        m_told = true;
        std::printf("ready\n");
        std::fflush(stdout);
    }

private:
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
