// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/dbus/BusObject.h"

#include "app/FoundEntries.h"
#include "app/dbus/BusNames.h"
#include "base/Worker.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

using Outcome = CaptureReport::Outcome;

/// Characters of recognised text in one answer; the bus refuses messages of 128 MiB, and who sends
/// one is disconnected.
constexpr qsizetype mostText = 16 * 1024 * 1024;

/// As much of an argument as fits a message.
QString quoted(const QString& text)
{
    return u"“%1”"_s.arg(text.left(200));
}

/// Whether a capture is to be answered when it has ended.
Result<bool> waitsFrom(const QVariantMap& options)
{
    bool waits = true;
    for (const auto& [name, value] : options.asKeyValueRange()) {
        if (name != u"wait"_s)
            return Error::failed(u"There is no option %1."_s.arg(quoted(name)));
        if (value.typeId() != QMetaType::Bool)
            return Error::failed(u"“wait” is either true or false."_s);
        waits = value.toBool();
    }
    return waits;
}

QList<QVariantMap> described(const QList<HistoryItem>& items, const TextFiles& texts, uint limit)
{
    QList<QVariantMap> entries;
    qsizetype read = 0;
    for (const auto& item : items) {
        if (limit > 0 && entries.size() == qsizetype(limit))
            break;
        const QString text = texts.read(item.id);
        if (read += text.size(); read > mostText)
            break;
        entries << valuesOf(item, text);
    }
    return entries;
}

QString sentenceOf(const CaptureReport& report)
{
    if (report.outcome == Outcome::Cancelled && report.reason.isEmpty())
        return u"It was cancelled."_s;
    return report.reason;
}

/// Other programs hear that there is a capture, but only who asked for it what it says.
QVariantMap announced(CaptureReport report)
{
    report.text.clear();
    return Control::valuesOf(report);
}

} // namespace

BusObject::BusObject(Means means)
    : m_means(std::move(means))
{
    connect(&m_means.state, &AppState::captureBegan, this, [this] { Q_EMIT busyChanged(true); });
    connect(&m_means.state, &AppState::captureEnded, this, [this](const CaptureReport& report) {
        if (report.outcome == Outcome::Done)
            Q_EMIT Captured(announced(report));
        Q_EMIT busyChanged(isBusy());
    });
    connect(&m_means.history, &HistoryStore::changed, this, &BusObject::HistoryChanged);
}

QString BusObject::version() const
{
    return QStringLiteral(PIXMALLOW_VERSION);
}

QVariantMap BusObject::Capture(const QString& kind, const QVariantMap& options)
{
    const auto known = captureKind(kind);
    const auto waits = waitsFrom(options);
    if (!known)
        refuse(u"There is no capture %1."_s.arg(quoted(kind)));
    else if (!waits)
        refuse(waits.error().message);
    if (!known || !waits)
        return {};
    auto report = m_means.requests.capture(*known);
    if (*waits || report.await_ready())
        answerLater(std::move(report), Answer::Report);
    return {{u"outcome"_s, u"accepted"_s}};
}

QList<QVariantMap> BusObject::History(const QString& search, uint limit)
{
    setDelayedReply(true);
    // The texts of thousands of entries are read and packed elsewhere.
    auto work = [message = message(), bus = connection(), items = m_means.history.items(),
                    folder = m_means.dataFolder, search, limit]() -> Result<void> {
        const TextFiles texts(folder);
        const auto entries = described(findEntries(items, texts, search), texts, limit);
        bus.send(message.createReply(QVariant::fromValue(entries)));
        return {};
    };
    std::ignore = runOnWorker(std::move(work));
    return {};
}

void BusObject::EditFile(const QString& path)
{
    if (isPath(path))
        answerLater(m_means.requests.edit({path}), Answer::Nothing);
}

void BusObject::PinFile(const QString& path)
{
    if (isPath(path))
        answerLater(m_means.requests.pin({path}), Answer::Nothing);
}

void BusObject::ShowHistory()
{
    m_means.requests.show(Control::Show::What::History);
}

void BusObject::Activate(const QVariantMap&)
{
    m_means.requests.activate();
}

void BusObject::Open(const QStringList& uris, const QVariantMap&)
{
    QStringList paths;
    for (const auto& uri : uris)
        if (const QUrl url(uri); url.isLocalFile())
            paths << url.toLocalFile();
        else
            return refuse(u"%1 is no file of this system."_s.arg(quoted(uri)));
    if (paths.isEmpty())
        return refuse(u"There is nothing to open."_s);
    answerLater(m_means.requests.edit(paths), Answer::Nothing);
}

void BusObject::ActivateAction(const QString& name, const QVariantList&, const QVariantMap&)
{
    if (const auto kind = captureKind(name)) {
        std::ignore = m_means.requests.capture(*kind);
        return;
    }
    if (const auto window = Control::windowNamed(name))
        return m_means.requests.show(*window);
    refuse(u"There is no action %1."_s.arg(quoted(name)));
}

void BusObject::withEntry(EntryDeed deed, const QString& id)
{
    answerLater(m_means.requests.withEntry(deed, id), Answer::Nothing);
}

bool BusObject::isPath(const QString& path)
{
    if (QDir::isAbsolutePath(path))
        return true;
    refuse(u"%1 is no absolute path."_s.arg(quoted(path)));
    return false;
}

void BusObject::refuse(const QString& why)
{
    sendErrorReply(BusNames::invalidArguments(), why);
}

void BusObject::answerLater(Requests::Report report, Answer answer)
{
    setDelayedReply(true);
    std::move(report).then([message = message(), bus = connection(), answer](const auto& result) {
        const auto ended = Control::reportOf(result);
        if (ended.outcome != Outcome::Done)
            bus.send(message.createErrorReply(BusNames::errorOf(ended.outcome), sentenceOf(ended)));
        else if (answer == Answer::Report)
            bus.send(message.createReply(QVariant(Control::valuesOf(ended))));
        else
            bus.send(message.createReply());
    });
}
