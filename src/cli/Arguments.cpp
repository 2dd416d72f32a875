// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include "base/Words.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

std::optional<std::uint32_t> windowNumber(const QString& text)
{
    bool valid = false;
    const auto id = text.toUInt(&valid, 0); // Decimal, or hexadecimal with 0x.
    return valid && id ? std::optional(id) : std::nullopt;
}

Result<ShotTarget> shotTarget(const QCommandLineParser& parser)
{
    const QString screen = parser.value(u"screen"_s), window = parser.value(u"window"_s),
                  area = parser.value(u"area"_s);
    const int chosen = int(parser.isSet(u"screen"_s)) + int(parser.isSet(u"window"_s))
        + int(parser.isSet(u"area"_s));
    if (chosen > 1)
        return Error::failed(Words::tr("Only one of --screen, --window and --area can be given."));
    if (parser.isSet(u"screen"_s)) {
        bool valid = false;
        const int number = screen.toInt(&valid);
        if (!valid || number < 1)
            return Error::failed(
                Words::tr("--screen takes a number from 1, not '%1'.").arg(screen));
        return ShotTarget(ScreenNumber {number});
    }
    if (parser.isSet(u"window"_s)) {
        const auto id = windowNumber(window);
        if (!id)
            return Error::failed(
                Words::tr("--window takes a number as 'pixmallow list windows' shows, not '%1'.")
                    .arg(window));
        return ShotTarget(WindowNumber {*id});
    }
    if (parser.isSet(u"area"_s)) {
        const auto rect = parseArea(area);
        if (!rect)
            return Error::failed(Words::tr("--area takes X,Y,WxH in pixels, not '%1'.").arg(area));
        return ShotTarget(*rect);
    }
    return ShotTarget(WholeDesktop {});
}

Result<Request> shot(const QCommandLineParser& parser)
{
    const auto target = shotTarget(parser);
    if (!target)
        return target.error();

    ShotRequest request {*target, parser.value(u"output"_s), parser.isSet(u"cursor"_s),
        parser.isSet(u"shadow"_s), parser.isSet(u"json"_s)};
    if (parser.isSet(u"output"_s) && request.output.isEmpty())
        return Error::failed(Words::tr("--output needs a file name, or - for standard output."));
    if (request.output == u"-"_s && request.json)
        return Error::failed(Words::tr("--json and --output - both want standard output."));
    if (request.shadow && !std::holds_alternative<WindowNumber>(request.target))
        return Error::failed(Words::tr("--shadow goes with --window."));
    const QString extension = QFileInfo(request.output).suffix().toLower();
    if (extension == u"jpg"_s || extension == u"jpeg"_s)
        return Error::failed(
            Words::tr("'shot' writes PNG files; choose a name that ends in .png."));
    return Request(std::move(request));
}

Result<Request> list(const QCommandLineParser& parser)
{
    using What = ListRequest::What;
    const QMap<QString, What> known {{u"screens"_s, What::Screens}, {u"windows"_s, What::Windows},
        {u"history"_s, What::History}};
    const auto what = known.constFind(parser.positionalArguments().value(0));
    if (what == known.cend())
        return Error::failed(Words::tr("'list' takes 'screens', 'windows' or 'history'."));
    ListRequest request {*what, parser.isSet(u"json"_s)};
    if (parser.isSet(u"search"_s))
        request.search = parser.value(u"search"_s);
    if (request.search && request.what != What::History)
        return Error::failed(Words::tr("--search goes with 'list history'."));
    return Request(std::move(request));
}

Result<Request> capture(const QCommandLineParser& parser)
{
    const QString word = parser.positionalArguments().value(0);
    if (const auto kind = captureKind(word))
        return Request(CaptureRequest {*kind, parser.isSet(u"wait"_s), parser.isSet(u"json"_s)});
    QStringList kinds;
    for (const auto& info : captureKinds)
        kinds.push_back(info.key);
    const QString known = kinds.join(u", "_s);
    return Error::failed(word.isEmpty()
            ? Words::tr("'capture' takes one of %1.").arg(known)
            : Words::tr("'capture' takes one of %1, not '%2'.").arg(known, word));
}

Result<Request> pin(const QCommandLineParser& parser)
{
    const auto files = parser.positionalArguments();
    if (files.isEmpty() || files.contains(QString()))
        return Error::failed(Words::tr("'pin' takes one or more image files."));
    return Request(PinRequest {files});
}

Result<Request> edit(const QCommandLineParser& parser)
{
    const auto files = parser.positionalArguments();
    if (files.isEmpty() || files.contains(QString()))
        return Error::failed(Words::tr("'edit' takes one or more image files."));
    return Request(EditRequest {files});
}

Result<Request> text(const QCommandLineParser& parser)
{
    if (parser.positionalArguments().isEmpty())
        return Error::failed(Words::tr("'text' takes one or more picture files."));
    return Request(TextRequest {parser.positionalArguments(), parser.isSet(u"json"_s)});
}

constexpr qsizetype anyNumber = std::numeric_limits<qsizetype>::max();

struct Command {
    QString name; ///< Empty for the one without a name.
    QList<QCommandLineOption> options;
    qsizetype words; ///< How many may follow besides.
    std::function<Result<Request>(const QCommandLineParser&)> read;
};

QList<Command> commands(const QStringList& arguments)
{
    const auto flag = [](const QString& name) { return QCommandLineOption(name); };
    return {
        {u"shot"_s,
            {{u"output"_s, {}, u"FILE"_s}, {u"screen"_s, {}, u"N"_s}, {u"window"_s, {}, u"ID"_s},
                {u"area"_s, {}, u"X,Y,WxH"_s}, flag(u"cursor"_s), flag(u"shadow"_s),
                flag(u"json"_s)},
            0, shot},
        {u"list"_s, {flag(u"json"_s), {u"search"_s, {}, u"WORDS"_s}}, 1, list},
        {u"capture"_s, {flag(u"wait"_s), flag(u"json"_s)}, 1, capture},
        {u"pin"_s, {}, anyNumber, pin},
        {u"edit"_s, {}, anyNumber, edit},
        {u"text"_s, {flag(u"json"_s)}, anyNumber, text},
        {u"doctor"_s, {flag(u"online"_s), flag(u"json"_s)}, 0,
            [](const auto& parser) {
                return Request(DoctorRequest {parser.isSet(u"online"_s), parser.isSet(u"json"_s)});
            }},
        {u"history"_s, {}, 0,
            [](auto&) { return Request(ShowRequest {Control::Show::What::History}); }},
        {u"settings"_s, {}, 0,
            [](auto&) { return Request(ShowRequest {Control::Show::What::Settings}); }},
        {u"gallery"_s, {}, 0,
            [](auto&) { return Request(ShowRequest {Control::Show::What::Gallery}); }},
        {u"quit"_s, {}, 0, [](auto&) { return Request(QuitRequest {}); }},
        {{}, {flag(u"replace"_s), flag(u"background"_s)}, 0,
            [&](auto&) { return Request(LaunchRequest {arguments}); }},
    };
}

Result<Request> parse(const Command& command, const QStringList& words)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions(command.options);
    if (!parser.parse(QStringList {u"pixmallow"_s} + words)) // Its messages are whole sentences.
        return Error::failed(parser.errorText());
    const auto given = parser.positionalArguments();
    if (given.size() > command.words)
        return Error::failed(Words::tr("Unexpected argument '%1'.").arg(given[command.words]));
    for (const auto& option : command.options)
        if (parser.values(option).size() > 1)
            return Error::failed(Words::tr("--%1 is given twice.").arg(option.names().first()));
    return command.read(parser);
}

} // namespace

Result<Request> parseArguments(const QStringList& arguments)
{
    const QString first = arguments.value(0);
    const QStringList rest = arguments.mid(1);
    if (rest.contains(u"--help"_s) || first == u"--help"_s || first == u"-h"_s
        || first == u"help"_s)
        return Request(HelpRequest {});
    if (first == u"--version"_s)
        return Request(VersionRequest {});
    const bool isNamed = !first.isEmpty() && !first.startsWith(u'-');
    for (const auto& command : commands(arguments))
        if (command.name == (isNamed ? first : QString()))
            return parse(command, isNamed ? rest : arguments);
    return Error::failed(Words::tr("Unknown command '%1'.").arg(first));
}

QList<CommandWords> commandWords()
{
    QList<CommandWords> all;
    for (const auto& command : commands({})) {
        QStringList options;
        for (const auto& option : command.options)
            options << option.names();
        all << CommandWords {command.name, options};
    }
    return all;
}

std::optional<QRect> parseArea(const QString& text)
{
    static const QRegularExpression pattern(u"^(-?\\d{1,5}),(-?\\d{1,5}),(\\d{1,5})x(\\d{1,5})$"_s);
    const auto match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto number = [&](int group) { return match.captured(group).toInt(); };
    const QRect area(number(1), number(2), number(3), number(4));
    return area.isEmpty() ? std::nullopt : std::optional(area);
}

QString helpText()
{
    return Words::tr(R"(Pixmallow takes screenshots.

usage:
  pixmallow [--replace] [--background]
  pixmallow capture KIND [--wait] [--json]
  pixmallow pin FILE...
  pixmallow edit FILE...
  pixmallow history
  pixmallow gallery
  pixmallow settings
  pixmallow quit
  pixmallow shot [--output FILE|-] [--screen N | --window ID | --area X,Y,WxH]
                 [--cursor] [--shadow] [--json]
  pixmallow list screens|windows [--json]
  pixmallow list history [--search WORDS] [--json]
  pixmallow text FILE... [--json]
  pixmallow doctor [--online] [--json]
  pixmallow --version | --help

Without a command Pixmallow starts, stays in the background and opens its panel;
if it runs already, it opens the panel of the one that does.
  --replace      end the one that runs and take its place
  --background   do not open the panel

capture  Begins a capture as its shortcut would, and starts Pixmallow if it does
       not run. KIND is region, window, screen, delayed or text.
  --wait         return when the capture has ended, and print the path of the
                 file, or the text
  --json         print how it ended and what there is to know about it

pin    Shows image files above all windows, and starts Pixmallow if it does not
       run. The wheel zooms, with Ctrl it fades, Escape closes.

edit   Opens image files in the editor, and starts Pixmallow if it does not run.
       Closing keeps the edit: PNG and JPEG files are replaced, for others there
       is a new PNG file beside them.

history, gallery, settings
       Opens the window of past captures, of achievements and the pet, or of
       all that can be set, and starts Pixmallow if it does not run.

quit   Ends Pixmallow, if it runs.

shot   Writes a picture of the whole desktop to a PNG file and nothing else: no
       history, no clipboard, no window. Made for scripts.
  --output FILE  replace FILE, or make it; - is standard output. Without it the
                 file gets a dated name in the current folder, which is printed.
  --screen N     one screen, as numbered by 'list screens'
  --window ID    one window by itself, even if others cover it
  --area X,Y,WxH part of the desktop, in device pixels from its top left corner
  --cursor       with the mouse pointer
  --shadow       with the window's shadow
  --json         print where the picture is and what it shows

list   Prints the screens, the windows on screen with the front-most first, or
       the past captures with the newest first.
  --search WORDS only captures with WORDS in the name of their program or file,
                 in their date, or in the text they show

text   Prints the text of pictures, or what the QR and bar codes in them say if
       there is no other text. With several files each text has a heading.
  --json         print a line of JSON for each file

doctor Examines how well Pixmallow can work here and says what to do about what is
       not well: screens, of which each shows a small pattern for a moment,
       shortcuts, clipboard, tray, text recognition, sound, folders, updates.
       Exit code 0 if all is well, 1 if something needs attention.
  --online       ask the address of updates, too
  --json         print a list of what was found

Exit code: 0 done, 1 cancelled by the user, 2 failed, 3 another capture is
running, 64 wrong arguments.
)");
}
