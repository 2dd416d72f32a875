// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/SoundFile.h"

#include "base/Words.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QFile& fileOf(void* user)
{
    return *static_cast<QFile*>(user);
}

sf_count_t seekIn(sf_count_t offset, int whence, void* user)
{
    auto& file = fileOf(user);
    if (whence == SEEK_CUR)
        offset += file.pos();
    else if (whence == SEEK_END)
        offset += file.size();
    return file.seek(offset) ? file.pos() : -1;
}

/// Through QFile, because the program's own sounds are resources.
SF_VIRTUAL_IO readingThroughQFile()
{
    return {
        .get_filelen = [](void* user) -> sf_count_t { return fileOf(user).size(); },
        .seek = seekIn,
        .read = [](void* to, sf_count_t count, void* user) -> sf_count_t {
            return std::max<qint64>(fileOf(user).read(static_cast<char*>(to), count), 0);
        },
        .write = [](const void*, sf_count_t, void*) -> sf_count_t { return 0; },
        .tell = [](void* user) -> sf_count_t { return fileOf(user).pos(); },
    };
}

QString reasonOf(int error)
{
    if (error == SF_ERR_UNRECOGNISED_FORMAT || error == SF_ERR_UNSUPPORTED_ENCODING)
        return Words::tr("its format is not supported");
    return Words::tr("it is damaged");
}

} // namespace

Result<std::unique_ptr<SoundFile>> SoundFile::open(const QUrl& url)
{
    const QString path = url.scheme() == "qrc"_L1 ? u':' + url.path() : url.toLocalFile();
    const auto refuse = [&](const QString& reason) {
        return Error::failed(
            Words::tr("Couldn't play the sound “%1”: %2.").arg(QFileInfo(path).fileName(), reason));
    };
    if (!QFileInfo::exists(path))
        return refuse(Words::tr("there is no such file"));
    if (!QFileInfo(path).isFile())
        return refuse(Words::tr("it is no file"));
    auto sound = std::unique_ptr<SoundFile>(new SoundFile(path));
    if (!sound->m_file.open(QIODevice::ReadOnly))
        return refuse(Words::tr("it can't be read"));
    auto io = readingThroughQFile();
    sound->m_sound.reset(sf_open_virtual(&io, SFM_READ, &sound->m_info, &sound->m_file));
    if (!sound->m_sound)
        return refuse(reasonOf(sf_error(nullptr)));
    return sound;
}

std::size_t SoundFile::read(std::span<float> samples)
{
    const auto frames = sf_count_t(samples.size()) / m_info.channels;
    const auto got = sf_readf_float(m_sound.get(), samples.data(), frames);
    return std::size_t(std::max<sf_count_t>(got, 0) * m_info.channels);
}
