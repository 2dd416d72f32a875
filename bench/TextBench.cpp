// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ModuleTextRecognizer.h"
#include "tests/platform/TextCorpus.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <map>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Of a hundred characters, how many may be wrong.
constexpr double mostErrorsAt1x = 1.5, mostErrorsAt2x = 1;

/// How many times as long reading may take when another program wants a processor.
constexpr double mostSlowdown = 3;

const QStringList fonts {u"DejaVu Sans"_s, u"DejaVu Sans Mono"_s, u"Liberation Sans"_s,
    u"Liberation Serif"_s, u"Cantarell"_s, u"Open Sans"_s};

constexpr int sizes[] {10, 11, 13, 16, 20};

constexpr int linesOfPage = 8;

struct Score {
    qint64 errors = 0, characters = 0;

    double percent() const { return 100 * double(errors) / double(characters); }
};

/// Of one reading, in milliseconds.
struct Time {
    double cpu = 0, wall = 0;
};

double processorTime()
{
    timespec time {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// Reads with the models of a folder, as if no others were installed.
class Reader final {
public:
    Reader(const QStringList& models, const QStringList& languages)
        : m_recognizer(languages)
    {
        for (const auto& model : models) {
            const QString file = u"/%1.traineddata"_s.arg(model);
            if (!QFile::link(u"/usr/share/tesseract-ocr/5/tessdata"_s + file, m_data.path() + file))
                qFatal("no folder for models");
        }
        qputenv("TESSDATA_PREFIX", QFile::encodeName(m_data.path()));
    }

    QString read(const QImage& page, double scale)
    {
        const double before = processorTime();
        QElapsedTimer timer;
        timer.start();
        const auto text = m_recognizer.recognise(page, scale, m_cancelled);
        m_times.push_back({processorTime() - before, double(timer.nsecsElapsed()) / 1e6});
        if (!text)
            qFatal("%s", qPrintable(text.error().message));
        QStringList lines;
        for (const auto& line : text->lines)
            lines << line.text;
        return lines.join(u'\n');
    }

    Time lastTime() const { return m_times.back(); }
    Time firstTime() const { return m_times.front(); }

    /// The median of the pages behind the first, which loads the models.
    double median(double Time::*time) const
    {
        std::vector<double> sorted;
        for (std::size_t i = 1; i < m_times.size(); ++i)
            sorted.push_back(m_times[i].*time);
        std::sort(sorted.begin(), sorted.end());
        return sorted[sorted.size() / 2];
    }

private:
    QTemporaryDir m_data;
    ModuleTextRecognizer m_recognizer;
    const std::atomic<bool> m_cancelled = false;
    std::vector<Time> m_times;
};

void printErrors(const std::map<QString, Score>& scores)
{
    for (const auto& [name, score] : scores)
        std::printf("    %-22s %5.2f %%\n", qPrintable(name), score.percent());
}

void printTotal(const char* name, const Score& score, double most)
{
    std::printf("  %s  %5.2f %% of %lld characters wrong (%s %.1f)\n", name, score.percent(),
        static_cast<long long>(score.characters), score.percent() <= most ? "<=" : "MISSED", most);
}

void readCorpus(const QStringList& models, const QStringList& languages)
{
    Reader reader(models, languages);
    std::map<double, Score> totals;
    std::map<QString, Score> parts;
    quint32 seed = 1;
    for (const double scale : {1.0, 2.0})
        for (const auto& font : fonts)
            for (const int size : sizes)
                for (const bool dark : {false, true}) {
                    const auto lines = TextCorpus::lines(linesOfPage, seed++);
                    const QImage page = TextCorpus::page(lines, {font, size, scale, dark});
                    const QString expected = lines.join(u'\n');
                    const int errors = TextCorpus::errors(reader.read(page, scale), expected);
                    const QString at = u"%1x "_s.arg(scale);
                    for (auto* score :
                        {&totals[scale], &parts[at + font], &parts[at + u"%1 points"_s.arg(size)],
                            &parts[at + (dark ? u"dark"_s : u"light"_s)]}) {
                        score->errors += errors;
                        score->characters += expected.size();
                    }
                }
    std::printf("%s, read by a user who speaks \"%s\"\n", qPrintable(models.join(u" and "_s)),
        qPrintable(languages.first()));
    printTotal("1x", totals[1], mostErrorsAt1x);
    printTotal("2x", totals[2], mostErrorsAt2x);
    std::printf(
        "  page of %d lines: median %.0f ms of processor time, %.0f ms on the clock; first page, "
        "with the models loaded, %.0f and %.0f ms\n",
        linesOfPage, reader.median(&Time::cpu), reader.median(&Time::wall), reader.firstTime().cpu,
        reader.firstTime().wall);
    printErrors(parts);
}

/// A program that wants a processor for as long as this object lives.
class BusyProgram final {
public:
    BusyProgram()
        : m_process(fork())
    {
        if (m_process == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            for (std::atomic<unsigned> turns = 0;; ++turns) { }
        }
    }
    ~BusyProgram()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }

private:
    pid_t m_process;
};

void readBesideBusyProgram()
{
    Reader reader({u"eng"_s}, {u"en"_s});
    const auto lines = TextCorpus::lines(linesOfPage, 1);
    const QImage page = TextCorpus::page(lines, {fonts.first(), 13, 2, false});
    const auto best = [&] {
        double least = 1e9;
        for (int i = 0; i < 9; ++i) {
            reader.read(page, 2);
            least = std::min(least, reader.lastTime().wall);
        }
        return least;
    };
    reader.read(page, 2);
    const double alone = best();
    const BusyProgram busy;
    const double beside = best();
    const double times = beside / alone;
    std::printf(
        "best of nine: alone %.0f ms, beside a busy program %.0f ms: %.1f times (%s %.1f)\n", alone,
        beside, times, times <= mostSlowdown ? "<=" : "MISSED", mostSlowdown);
}

void readWholeScreens()
{
    Reader reader({u"eng"_s}, {u"en"_s});
    QImage screen(3840, 2160, QImage::Format_RGB32);
    screen.fill(Qt::white);
    reader.read(screen, 1);
    std::printf("3840 x 2160, empty: %.0f ms of processor time", reader.lastTime().cpu);
    reader.read(screen, 1);
    std::printf(", again %.0f ms\n", reader.lastTime().cpu);
    const QImage column
        = TextCorpus::page(TextCorpus::lines(42, 5), {u"Open Sans"_s, 13, 1, false});
    screen = QImage(1920, 1080, QImage::Format_RGB32);
    screen.fill(Qt::white);
    QPainter painter(&screen);
    for (int x = 0; x + column.width() <= screen.width(); x += column.width())
        painter.drawImage(x, 0, column);
    painter.end();
    reader.read(screen, 1);
    const int columns = screen.width() / column.width();
    std::printf("1920 x 1080, %d lines: %.1f s of processor time\n", 42 * columns,
        reader.lastTime().cpu / 1000);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    for (const auto& font : fonts)
        if (!QFontDatabase::families().contains(font))
            qFatal("the font %s is missing", qPrintable(font));
    readCorpus({u"eng"_s}, {u"en"_s});
    readCorpus({u"eng"_s, u"deu"_s}, {u"en"_s});
    readCorpus({u"eng"_s, u"deu"_s}, {u"de"_s});
    readBesideBusyProgram();
    readWholeScreens();
    return 0;
}
