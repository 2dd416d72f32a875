// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/Requests.h"

#include "app/AppState.h"
#include "app/OpenPictures.h"
#include "app/Rooms.h"
#include "base/Words.h"

#include <QFileInfo>

#include <algorithm>

namespace {

using Outcome = CaptureReport::Outcome;

UsePicture pinning(Rooms& rooms)
{
    return [&rooms](const FinishedCapture& picture) {
        rooms.pins().show(picture.shot);
        return Pending<void>::answered({});
    };
}

UsePicture copying(Rooms& rooms)
{
    return [&rooms](const FinishedCapture& picture) {
        auto [copied, answer] = Pending<void>::ask();
        const auto shared = std::make_shared<Pending<void>::Answer>(std::move(answer));
        rooms.actions().copy(picture).then([shared](const Result<QString>& told) {
            (*shared)(told ? Result<void>() : told.error());
        });
        return std::move(copied);
    };
}

CaptureReport reveal(Rooms& rooms, const HistoryItem& item)
{
    if (!QFileInfo::exists(item.path))
        return {Outcome::NotFound, Words::tr("There is no file “%1”.").arg(item.path)};
    rooms.actions().reveal({.shot = {}, .path = item.path});
    return {Outcome::Done};
}

Requests::Report withEntry(Rooms& rooms, EntryDeed deed, const QString& id)
{
    const auto& items = rooms.history().items();
    const auto found = std::ranges::find(items, id, &HistoryItem::id);
    if (found == items.cend())
        return Requests::Report::answered(CaptureReport {
            Outcome::NotFound, Words::tr("The history has no entry “%1”.").arg(id.left(40))});
    const HistoryItem& item = *found;
    switch (deed) {
    case EntryDeed::Edit:
        return openEntry(item, editingIn(rooms.editors()));
    case EntryDeed::Pin:
        return openEntry(item, pinning(rooms));
    case EntryDeed::Copy:
        return openEntry(item, copying(rooms));
    case EntryDeed::Reveal:
        return Requests::Report::answered(reveal(rooms, item));
    case EntryDeed::Remove:
        break;
    }
    rooms.history().remove(HistoryItem(item)); // The list's own goes meanwhile.
    return Requests::Report::answered(CaptureReport {Outcome::Done});
}

} // namespace

Requests Requests::to(AppState& state, Rooms& rooms)
{
    return {
        .showPanel = [&state] { Q_EMIT state.panelRequested(); },
        .activate =
            [&state, &rooms] {
                if (!rooms.welcome())
                    Q_EMIT state.panelRequested();
            },
        .capture = [&state](CaptureKind kind) { return state.captureAndReport(kind); },
        .quit = [] { QCoreApplication::quit(); },
        .pin = [&rooms](const QStringList& paths) { return openFiles(paths, pinning(rooms)); },
        .edit = [&rooms](const QStringList& paths) { return rooms.editFiles(paths); },
        .withEntry
        = [&rooms](EntryDeed deed, const QString& id) { return ::withEntry(rooms, deed, id); },
        .show = [&state](Control::Show::What what) { state.show(what); },
        .refusedShortcuts = [&state] { return state.refusedHotkeys(); },
    };
}
