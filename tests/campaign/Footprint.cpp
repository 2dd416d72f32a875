// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/Footprint.h"

#include "platform/x11/Reply.h"

#include <QDir>
#include <QFile>

#include <xcb/res.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString folderOf(qint64 process)
{
    return u"/proc/%1"_s.arg(process);
}

qint64 entriesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

/// Bytes of a line such as "Rss:    1234 kB".
qint64 bytesIn(const QByteArray& table, const char* name)
{
    for (const QByteArray& line : table.split('\n'))
        if (line.startsWith(name))
            return line.mid(qsizetype(qstrlen(name))).chopped(2).trimmed().toLongLong() * 1024;
    return 0;
}

/// The first resource of each of the process's connections.
std::vector<quint32> connectionsOf(qint64 process, xcb_connection_t* server)
{
    const xcb_res_client_id_spec_t everybody {0, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto reply = owned(xcb_res_query_client_ids_reply(
        server, xcb_res_query_client_ids(server, 1, &everybody), nullptr));
    std::vector<quint32> found;
    if (!reply)
        return found;
    for (auto it = xcb_res_query_client_ids_ids_iterator(reply.get()); it.rem;
         xcb_res_client_id_value_next(&it))
        if (xcb_res_client_id_value_value_length(it.data) > 0
            && *xcb_res_client_id_value_value(it.data) == process)
            found.push_back(it.data->spec.client);
    return found;
}

} // namespace

Footprint Footprint::of(qint64 process, xcb_connection_t* server)
{
    QFile rollup(folderOf(process) + u"/smaps_rollup"_s);
    const QByteArray table = rollup.open(QIODevice::ReadOnly) ? rollup.readAll() : QByteArray();
    Footprint footprint {bytesIn(table, "Rss:"), bytesIn(table, "Pss:"),
        entriesIn(folderOf(process) + u"/fd"_s), entriesIn(folderOf(process) + u"/task"_s)};
    for (const quint32 client : connectionsOf(process, server)) {
        const auto resources = owned(xcb_res_query_client_resources_reply(
            server, xcb_res_query_client_resources(server, client), nullptr));
        const auto pixmaps = owned(xcb_res_query_client_pixmap_bytes_reply(
            server, xcb_res_query_client_pixmap_bytes(server, client), nullptr));
        if (!resources || !pixmaps)
            continue;
        for (auto it = xcb_res_query_client_resources_types_iterator(resources.get()); it.rem;
             xcb_res_type_next(&it))
            footprint.resources += it.data->count;
        footprint.pixmaps += qint64(pixmaps->bytes) + (qint64(pixmaps->bytes_overflow) << 32);
    }
    return footprint;
}

Footprint Footprint::median(const std::vector<Footprint>& samples)
{
    Footprint median;
    for (const auto member : {&Footprint::memory, &Footprint::share, &Footprint::files,
             &Footprint::threads, &Footprint::resources, &Footprint::pixmaps}) {
        std::vector<qint64> values;
        for (const Footprint& sample : samples)
            values.push_back(sample.*member);
        const auto middle = values.begin() + std::ssize(values) / 2;
        std::ranges::nth_element(values, middle);
        median.*member = *middle;
    }
    return median;
}
