// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Control.h"

#include "base/Words.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String accepted("accepted"), shortcuts("shortcuts");

struct OutcomeInfo {
    CaptureReport::Outcome outcome;
    QLatin1String key;
    int exitCode;
};

constexpr std::array<OutcomeInfo, 6> outcomes {{
    {CaptureReport::Outcome::Done, QLatin1String("done"), 0},
    {CaptureReport::Outcome::Cancelled, QLatin1String("cancelled"), 1},
    {CaptureReport::Outcome::Failed, QLatin1String("failed"), 2},
    {CaptureReport::Outcome::Busy, QLatin1String("busy"), 3},
    {CaptureReport::Outcome::Unavailable, QLatin1String("unavailable"), 2},
    {CaptureReport::Outcome::NotFound, QLatin1String("notFound"), 2},
}};

const OutcomeInfo& infoOf(CaptureReport::Outcome outcome)
{
    return *std::find_if(outcomes.begin(), outcomes.end(),
        [outcome](const OutcomeInfo& info) { return info.outcome == outcome; });
}

QByteArray lineOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

Result<QJsonObject> objectFrom(const QByteArray& line)
{
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
        return Error::failed(Words::tr("The line is not JSON: %1.").arg(error.errorString()));
    if (!document.isObject())
        return Error::failed(Words::tr("The line is not a JSON object."));
    return document.object();
}

/// As much of a value as fits a message.
QString quoted(const QJsonValue& value)
{
    return value.isString() ? Words::tr("“%1”").arg(value.toString().left(40))
                            : Words::tr("that is no text");
}

CaptureReport reportFrom(const QJsonObject& object, CaptureReport::Outcome outcome)
{
    return {
        .outcome = outcome,
        .reason = object[u"reason"].toString(),
        .path = object[u"path"].toString(),
        .size = {object[u"width"].toInt(), object[u"height"].toInt()},
        .scale = object[u"scale"].toDouble(1),
        .app = object[u"app"].toString(),
        .historyId = object[u"historyId"].toString(),
        .text = object[u"text"].toString(),
    };
}

/// How the windows that can be opened are called.
constexpr std::array<std::pair<Control::Show::What, QLatin1String>, 3> windows {{
    {Control::Show::What::History, QLatin1String("history")},
    {Control::Show::What::Gallery, QLatin1String("gallery")},
    {Control::Show::What::Settings, QLatin1String("settings")},
}};

struct RequestWriter {
    QJsonObject operator()(Control::ShowPanel) const { return {{u"command"_s, u"panel"_s}}; }
    QJsonObject operator()(Control::Quit) const { return {{u"command"_s, u"quit"_s}}; }
    QJsonObject operator()(Control::Capture capture) const
    {
        return {{u"command"_s, u"capture"_s}, {u"kind"_s, infoOf(capture.kind).key},
            {u"wait"_s, capture.wait}};
    }
    QJsonObject operator()(const Control::Edit& edit) const
    {
        return {{u"command"_s, u"edit"_s}, {u"paths"_s, QJsonArray::fromStringList(edit.paths)}};
    }
    QJsonObject operator()(const Control::Pin& pin) const
    {
        return {{u"command"_s, u"pin"_s}, {u"paths"_s, QJsonArray::fromStringList(pin.paths)}};
    }
    QJsonObject operator()(Control::Shortcuts) const { return {{u"command"_s, shortcuts}}; }
    QJsonObject operator()(Control::Show show) const
    {
        const auto window
            = std::ranges::find(windows, show.what, &decltype(windows)::value_type::first);
        return {{u"command"_s, window->second}};
    }
};

/// For requests that consist of paths.
template <typename Wanted>
Result<Control::Request> pathsFrom(const QJsonArray& items)
{
    Wanted wanted;
    for (const auto& item : items) {
        if (!item.isString())
            return Error::failed(Words::tr("A path is a text."));
        wanted.paths << item.toString();
    }
    if (wanted.paths.isEmpty())
        return Error::failed(Words::tr("There is nothing to open."));
    return Control::Request(wanted);
}

/// A newer program may have shortcuts that are not known here.
Control::ShortcutReport shortcutsFrom(const QJsonArray& refused)
{
    Control::ShortcutReport report;
    for (const auto& key : refused)
        if (const auto kind = captureKind(key.toString()))
            report.refused << *kind;
    return report;
}

struct AnswerWriter {
    QJsonObject operator()(Control::Accepted) const { return {{u"outcome"_s, accepted}}; }
    QJsonObject operator()(const CaptureReport& report) const
    {
        return QJsonObject::fromVariantMap(Control::valuesOf(report));
    }
    QJsonObject operator()(const Control::ShortcutReport& report) const
    {
        QJsonArray refused;
        for (const auto kind : report.refused)
            refused << infoOf(kind).key;
        return {{u"outcome"_s, shortcuts}, {u"refused"_s, refused}};
    }
};

} // namespace

QByteArray Control::toLine(const Request& request)
{
    return lineOf(std::visit(RequestWriter(), request));
}

QByteArray Control::toLine(const Answer& answer)
{
    const QByteArray line = lineOf(std::visit(AnswerWriter(), answer));
    if (line.size() - 1 <= longestAnswer)
        return line;
    return lineOf(AnswerWriter()(CaptureReport {.outcome = CaptureReport::Outcome::Failed,
        .reason = Words::tr("The answer is too long to be sent.")}));
}

Result<Control::Request> Control::requestFrom(const QByteArray& line)
{
    const auto object = objectFrom(line);
    if (!object)
        return object.error();
    const auto command = object->value(u"command");
    if (command == u"panel"_s)
        return Request(ShowPanel {});
    if (command == u"quit"_s)
        return Request(Quit {});
    if (command == shortcuts)
        return Request(Shortcuts {});
    if (const auto window = windowNamed(command.toString()))
        return Request(Show {*window});
    if (command == u"pin"_s)
        return pathsFrom<Pin>(object->value(u"paths").toArray());
    if (command == u"edit"_s)
        return pathsFrom<Edit>(object->value(u"paths").toArray());
    if (command != u"capture"_s)
        return Error::failed(Words::tr("There is no command %1.").arg(quoted(command)));
    const auto kind = object->value(u"kind");
    const auto wait = object->value(u"wait");
    const auto known = captureKind(kind.toString());
    if (!known)
        return Error::failed(Words::tr("There is no capture %1.").arg(quoted(kind)));
    if (!wait.isUndefined() && !wait.isBool())
        return Error::failed(Words::tr("“wait” is either true or false."));
    return Request(Capture {*known, wait.toBool()});
}

Result<Control::Answer> Control::answerFrom(const QByteArray& line)
{
    const auto object = objectFrom(line);
    if (!object)
        return object.error();
    const QString outcome = object->value(u"outcome").toString();
    if (outcome == accepted)
        return Answer(Accepted {});
    if (outcome == shortcuts)
        return Answer(shortcutsFrom(object->value(u"refused").toArray()));
    for (const auto& info : outcomes)
        if (outcome == info.key)
            return Answer(reportFrom(*object, info.outcome));
    return Error::failed(Words::tr("The line has no known outcome."));
}

CaptureReport Control::reportOf(const Result<CaptureReport>& result)
{
    if (result)
        return *result;
    return {.outcome = result.error().isCancelled() ? CaptureReport::Outcome::Cancelled
                                                    : CaptureReport::Outcome::Failed,
        .reason = result.error().message};
}

QVariantMap Control::valuesOf(const CaptureReport& report)
{
    QVariantMap values {{u"outcome"_s, QString(infoOf(report.outcome).key)}};
    const auto add = [&values](const QString& key, const QString& text) {
        if (!text.isEmpty())
            values.insert(key, text);
    };
    add(u"path"_s, report.path);
    if (!report.size.isEmpty()) {
        values.insert(u"width"_s, report.size.width());
        values.insert(u"height"_s, report.size.height());
        values.insert(u"scale"_s, report.scale);
    }
    add(u"app"_s, report.app);
    add(u"historyId"_s, report.historyId);
    add(u"text"_s, report.text);
    add(u"reason"_s, report.reason);
    return values;
}

std::optional<Control::Show::What> Control::windowNamed(QStringView name)
{
    for (const auto& [what, known] : windows)
        if (name == known)
            return what;
    return std::nullopt;
}

int Control::exitCode(const CaptureReport& report)
{
    return infoOf(report.outcome).exitCode;
}

QString Control::socketPath(const Folders& folders)
{
    return folders.runtime + u"/control"_s;
}
