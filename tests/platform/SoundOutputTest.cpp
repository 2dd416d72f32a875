// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/PulseSoundOutput.h"
#include "tests/TestFiles.h"

#include <gmock/gmock.h>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QtEndian>

#include <cmath>
#include <csignal>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr int rate = 44'100;
constexpr float silence = 0.001F; ///< The greatest sample that counts as such.

/// A tone of one channel that holds its level, as a WAV file. It begins with 50 ms of silence, as
/// loudspeakers that go nowhere swallow the first few milliseconds of what any program plays.
QByteArray tone(double frequency, double level, double seconds)
{
    constexpr std::uint32_t lead = rate / 20;
    const auto count = std::uint32_t(seconds * rate) + lead;
    QByteArray wav = QByteArray::fromHex("524946460000000057415645666d74201000000001000100"
                                         "44ac000088580100020010006461746100000000");
    qToLittleEndian(36 + 2 * count, wav.data() + 4);
    qToLittleEndian(2 * count, wav.data() + 40);
    for (std::uint32_t i = 0; i < count; ++i) {
        const double t = double(i - std::min(i, lead)) / rate;
        const double value = level * std::sin(2 * std::numbers::pi * frequency * t);
        const auto sample = qToLittleEndian(std::int16_t(std::lround(32'767 * value)));
        wav.append(reinterpret_cast<const char*>(&sample), sizeof sample);
    }
    return wav;
}

/// What comes out of a sound server's loudspeakers, from its first sample that is not silence.
class Recording final {
public:
    Recording()
    {
        m_recorder.start(u"parec"_s,
            {u"--device=nul.monitor"_s, u"--raw"_s, u"--format=float32le"_s, u"--channels=1"_s,
                u"--rate=%1"_s.arg(rate), u"--latency-msec=10"_s});
        m_recorder.waitForReadyRead();
    }
    ~Recording()
    {
        m_recorder.kill();
        m_recorder.waitForFinished();
    }

    const std::vector<float>& heard()
    {
        m_recorder.waitForReadyRead(10);
        m_bytes += m_recorder.readAllStandardOutput();
        qsizetype at = 0;
        for (; at + 4 <= m_bytes.size(); at += 4) {
            const auto sample = qFromLittleEndian<float>(m_bytes.constData() + at);
            if (!m_heard.empty() || std::abs(sample) > silence)
                m_heard.push_back(sample);
        }
        m_bytes.remove(0, at);
        return m_heard;
    }

    /// Waits until nothing has been heard for 400 ms after something was.
    std::vector<float> untilSilent()
    {
        for (const QDeadlineTimer deadline(15'000); !deadline.hasExpired();) {
            const auto& samples = heard();
            const auto last = std::find_if(samples.rbegin(), samples.rend(),
                [](float sample) { return std::abs(sample) >= silence; });
            if (last != samples.rend() && last - samples.rbegin() > rate * 4 / 10)
                return {samples.begin(), last.base()};
        }
        ADD_FAILURE() << "no sound, or no end of it";
        return {};
    }

private:
    QProcess m_recorder;
    QByteArray m_bytes; // Not yet a whole sample.
    std::vector<float> m_heard;
};

class SoundOutputTest : public testing::Test {
protected:
    SoundOutputTest()
    {
        qputenv("HOME", QFile::encodeName(folder.path()));
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
        qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socket()));
    }
    ~SoundOutputTest() override
    {
        if (server.state() == QProcess::NotRunning)
            return;
        ::kill(pid_t(server.processId()), SIGCONT);
        server.terminate();
        server.waitForFinished();
    }

    QString socket() const { return folder.filePath(u"pulse.sock"_s); }

    /// A server whose loudspeakers go nowhere; false without PulseAudio.
    bool startServer()
    {
        const QString program = QStandardPaths::findExecutable(u"pulseaudio"_s);
        if (program.isEmpty())
            return false;
        server.setStandardErrorFile(folder.filePath(u"log"_s));
        server.start(program,
            {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s, u"--disable-shm=yes"_s,
                u"--use-pid-file=no"_s, u"-L"_s,
                u"module-native-protocol-unix auth-anonymous=1 socket="_s + socket(), u"-L"_s,
                u"module-null-sink sink_name=nul rate=%1 channels=1"_s.arg(rate)});
        for (int i = 0; i < 500 && !QFile::exists(socket()); ++i)
            server.waitForFinished(20);
        return QFile::exists(socket());
    }

    QUrl add(const QString& name, const QByteArray& content)
    {
        put(folder.filePath(name), content);
        return QUrl::fromLocalFile(folder.filePath(name));
    }

    QTemporaryDir folder;
    QProcess server;
};

#define NEEDS_SERVER()                                                                             \
    if (!startServer())                                                                            \
    GTEST_SKIP() << "needs the package pulseaudio"

float loudest(const std::vector<float>& samples)
{
    float peak = 0;
    for (const float sample : samples)
        peak = std::max(peak, std::abs(sample));
    return peak;
}

} // namespace

TEST_F(SoundOutputTest, playsWhatTheFileHolds)
{
    NEEDS_SERVER();
    PulseSoundOutput output;
    Recording recording;
    output.play(add(u"tone.wav"_s, tone(881, 0.5, 0.5)), 0.5);
    const auto heard = recording.untilSilent();
    EXPECT_NEAR(double(heard.size()) / rate, 0.5, 0.002);
    EXPECT_NEAR(loudest(heard), 0.25, 0.002);
}

TEST_F(SoundOutputTest, mixesSoundsThatOverlap)
{
    NEEDS_SERVER();
    PulseSoundOutput output;
    Recording recording;
    output.play(add(u"long.wav"_s, tone(440, 0.3, 0.9)), 1);
    QThread::msleep(200);
    output.play(add(u"short.wav"_s, tone(1'330, 0.3, 0.2)), 7); // No louder than 1.
    const auto heard = recording.untilSilent();
    EXPECT_NEAR(double(heard.size()) / rate, 0.9, 0.1); // A busy machine leaves gaps.
    EXPECT_NEAR(loudest(heard), 0.6, 0.03);
    EXPECT_NEAR(loudest({heard.end() - 4'410, heard.end()}), 0.3, 0.01);
}

TEST_F(SoundOutputTest, theEndOfTheProgramCutsSoundsOff)
{
    NEEDS_SERVER();
    auto output = std::make_unique<PulseSoundOutput>();
    Recording recording;
    for (int i = 0; i < 40; ++i) // More than are played at once.
        output->play(add(u"long.wav"_s, tone(440, 0.02, 30)), 1);
    while (recording.heard().size() < 4'410) { }
    QElapsedTimer timer;
    timer.start();
    output.reset();
    EXPECT_LT(timer.elapsed(), 1'000);
    EXPECT_LT(recording.untilSilent().size(), std::size_t(10 * rate)) << "of 30 seconds";
}

TEST_F(SoundOutputTest, aServerThatHangsHoldsNobodyUp)
{
    NEEDS_SERVER();
    ::kill(pid_t(server.processId()), SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    {
        PulseSoundOutput output;
        output.play(add(u"tone.wav"_s, tone(440, 0.3, 0.5)), 1);
        QThread::msleep(100); // Time for the thread to be stuck.
    }
    EXPECT_LT(timer.elapsed(), 1'500);
}

TEST_F(SoundOutputTest, isSilentWithoutAServer)
{
    const auto file = add(u"tone.wav"_s, tone(440, 0.3, 0.5));
    PulseSoundOutput output;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 10; ++i)
        output.play(file, 1);
    EXPECT_LT(timer.elapsed(), 100);
    EXPECT_TRUE(output.check(file));
}

TEST_F(SoundOutputTest, saysWhyAFileCannotBePlayed)
{
    PulseSoundOutput output;
    const auto reason = [&](const QUrl& file) {
        output.play(file, 1); // Silent, and no crash.
        const auto playable = output.check(file);
        return playable ? u"plays"_s : playable.error().message.section(u": "_s, -1);
    };
    const auto whole = tone(440, 0.3, 0.5);
    EXPECT_EQ(reason(add(u"whole"_s, whole)), u"plays"_s); // Known by content.
    EXPECT_EQ(reason(add(u"short.wav"_s, whole.left(1'000))), u"plays"_s);
    EXPECT_EQ(reason(add(u"text.wav"_s, "not a sound at all, just text, some of it")),
        u"its format is not supported."_s);
    EXPECT_EQ(reason(add(u"movie.m4a"_s,
                  QByteArray::fromHex("00000020667479704d34412000000000") + QByteArray(80, '\0'))),
        u"its format is not supported."_s);
    EXPECT_EQ(reason(add(u"empty.wav"_s, {})), u"its format is not supported."_s);
    EXPECT_EQ(reason(add(u"cut.wav"_s, whole.left(30))), u"it is damaged."_s);
    EXPECT_EQ(reason(QUrl::fromLocalFile(folder.path())), u"it is no file."_s);
    const QString fifo = folder.filePath(u"fifo"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    EXPECT_EQ(reason(QUrl::fromLocalFile(fifo)), u"it is no file."_s);
    EXPECT_EQ(output.check(QUrl(u"qrc:/no such.wav"_s)).error().message,
        u"Couldn't play the sound “no such.wav”: there is no such file."_s);
}
