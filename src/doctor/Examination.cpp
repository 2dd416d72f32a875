// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/Examination.h"

#include "base/ControlClient.h"
#include "base/Words.h"
#include "doctor/FolderProbe.h"
#include "doctor/ScreenProbe.h"
#include "update/HttpGet.h"
#include "update/UpdateRules.h"
#include "update/UpdateSource.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// With a server that sends nothing.
constexpr auto patience = 10s;

constexpr qsizetype mostOfFeed = 1 << 20; // Bytes.

/// Small, and with nothing in it.
QImage blank()
{
    QImage image(96, 96, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

/// What the resident program says; nothing where none runs.
std::optional<Result<Control::ShortcutReport>> askResident(const Folders& folders)
{
    using Report = Result<Control::ShortcutReport>;
    auto resident = ControlClient::connect(folders);
    if (!resident)
        return Report(resident.error());
    if (!*resident)
        return std::nullopt;
    const auto answer = (*resident)->ask(Control::Shortcuts {});
    if (!answer)
        return Report(answer.error());
    if (const auto* report = std::get_if<Control::ShortcutReport>(&*answer))
        return Report(*report);
    const auto* refusal = std::get_if<CaptureReport>(&*answer);
    return Report(
        Error::failed(refusal ? refusal->reason : Words::tr("It is of another version.")));
}

/// The version that an address has for this system, empty where it has none.
Result<QString> publishedVersion(const UpdateSource& source)
{
    QByteArray feed;
    const auto take = [&feed](const QByteArray& piece) {
        feed += piece;
        return feed.size() > mostOfFeed ? errorOf(UpdateError::Invalid) : Result<void>();
    };
    const auto fetched = HttpGet({source.feed, source.userAgent(), patience}, take).run().wait();
    if (!fetched)
        return fetched.error();
    const auto info = UpdateRules::readFeed(feed, source.member);
    if (!info)
        return info.error();
    return *info ? (*info)->version : QString();
}

} // namespace

Examination::Examination(Sources sources)
    : m_sources(std::move(sources))
{
}

DoctorFacts Examination::run(const QString& noDesktop) const
{
    const auto diagnosis = makeDiagnosis();
    DoctorFacts facts;
    facts.desktop = noDesktop.isEmpty() ? desktop() : Error::failed(noDesktop);
    facts.languages = diagnosis->textLanguages();
    const auto read = makeTextRecognizer()->recognise(blank(), 1, false);
    facts.reading = read ? Result<void>() : read.error();
    facts.faces = diagnosis->faceDetection();
    facts.sound = {m_sources.prefs.get(Prefs::keys.playSound), diagnosis->soundServer()};
    facts.folders = folders();
    facts.saveFolder = m_sources.prefs.saveFolder();
    facts.freeBytes = FolderProbe::freeBytes(facts.saveFolder);
    facts.updates = updates();
    return facts;
}

Result<DoctorFacts::Desktop> Examination::desktop() const
{
    auto platform = makeDesktopPlatform();
    if (!platform)
        return platform.error();
    const auto diagnosis = makeDiagnosis();
    DoctorFacts::Desktop facts;
    facts.isPermitted = platform->capture->permitted();
    facts.screens = probeScreens(*platform);
    addShortcuts(facts, *platform->hotkeys);
    facts.copies = diagnosis->exchangeCopies();
    facts.keepsCopies = diagnosis->keepsCopies();
    facts.hasTray = m_sources.hasTray();
    facts.isComposited = platform->surfaces->blendsWindows();
    return facts;
}

/// Where the program runs, only that one can tell; else each is registered for a moment.
void Examination::addShortcuts(DoctorFacts::Desktop& facts, Hotkeys& hotkeys) const
{
    const auto told = askResident(m_sources.folders);
    facts.isResident = told.has_value();
    if (told && !*told)
        facts.residentProblem = told->error().message;
    for (std::uint32_t id = 0; const auto& info : captureKinds) {
        DoctorFacts::Shortcut shortcut {info.kind,
            KeyCombo::fromText(m_sources.prefs.get(*Prefs::keys.hotkey(QString(info.key))))};
        if (told && *told)
            shortcut.isRefused = (*told)->refused.contains(info.kind);
        else if (!told && shortcut.combo)
            shortcut.isRefused = !hotkeys.registerHotkey(++id, shortcut.combo->chord());
        facts.shortcuts << shortcut;
    }
    for (std::uint32_t id = 1; id <= captureKinds.size(); ++id)
        hotkeys.unregisterHotkey(id);
}

QList<DoctorFacts::Folder> Examination::folders() const
{
    QList<DoctorFacts::Folder> folders {
        {u"configuration"_s, Words::tr("Folder of preferences"), m_sources.folders.configuration},
        {u"data"_s, Words::tr("Folder of history"), m_sources.folders.data},
        {u"pictures"_s, Words::tr("Folder of captures"), m_sources.prefs.saveFolder()}};
    for (auto& folder : folders)
        folder.problem = FolderProbe::problemOf(folder.path);
    return folders;
}

DoctorFacts::Updates Examination::updates() const
{
    const auto source = UpdateSource::ofBuild();
    DoctorFacts::Updates facts {source.feed, m_sources.prefs.get(Prefs::keys.autoUpdate)};
    if (m_sources.online && UpdateRules::isSafe(source.feed))
        facts.published = publishedVersion(source);
    return facts;
}
