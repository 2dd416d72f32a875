// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/TesseractRecognizer.h"

#include "base/Words.h"
#include "platform/freedesktop/text/Codes.h"
#include "platform/freedesktop/text/Misreadings.h"
#include "platform/freedesktop/text/PageImage.h"

#include <QPainter>

#include <malloc.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Pages that are not much higher than a line are read as one if nothing is found in them else.
constexpr int highestLine = int(60 * PageImage::bestScale);

/// Letters would be read into the pattern.
void wipe(QImage& grey, const QList<Code>& codes)
{
    QPainter painter(&grey);
    for (const auto& code : codes) {
        const int around = std::max(code.box.width(), code.box.height()) / 20 + 2;
        painter.fillRect(code.box.adjusted(-around, -around, around, around), Qt::white);
    }
}

/// Whether all of it is of one grey.
bool isEmpty(const QImage& grey)
{
    const uchar first = grey.constScanLine(0)[0];
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* row = grey.constScanLine(y);
        if (std::any_of(row, row + grey.width(), [&](uchar each) { return each != first; }))
            return false;
    }
    return true;
}

} // namespace

TesseractRecognizer::TesseractRecognizer(QStringList languages)
    : m_languages(std::move(languages))
{
}

Result<RecognisedText> TesseractRecognizer::recognise(
    const QImage& picture, double scale, const std::atomic<bool>& cancelled)
{
    if (picture.isNull())
        return RecognisedText {};
    if (std::max(picture.width(), picture.height()) > PageImage::longestSide)
        return Error::failed(
            Words::tr("The picture is too large to be read, longer than %1 pixels.")
                .arg(PageImage::longestSide));
    QImage grey = greyOf(picture);
    const auto codes = readCodes(grey);
    wipe(grey, codes);
    RecognisedText recognised;
    for (const auto& code : codes)
        recognised.codes << code.text;
    const auto loaded = load();
    if (!loaded && codes.isEmpty())
        return loaded.error();
    if (!loaded || isEmpty(grey))
        return recognised;
    const auto page = PageImage::of(grey, scale);
    const auto lines = cancelled ? QList<FoundLine>() : linesOf(page.image, cancelled);
    if (cancelled)
        return Error::cancelled();
    for (const auto& line : lines)
        recognised.lines << RecognisedText::Line {line.text(), page.inPicture(line.box)};
    return recognised;
}

void TesseractRecognizer::release()
{
    m_usual.reset();
    m_others.reset();
    malloc_trim(0); // Otherwise the allocator keeps most of it.
}

Result<void> TesseractRecognizer::load()
{
    if (m_usual)
        return {};
    m_choice = Languages::choose(m_languages, TesseractEngine::installed());
    if (m_choice.usual.isEmpty())
        return Error::failed(Languages::missing(m_languages));
    m_usual = TesseractEngine::load(m_choice.usual);
    if (!m_usual)
        return Error::failed(
            Words::tr("The language data for text recognition (%1) cannot be loaded.")
                .arg(m_choice.usual.join(u", "_s)));
    return {};
}

QList<FoundLine> TesseractRecognizer::linesOf(
    const QImage& page, const std::atomic<bool>& cancelled)
{
    m_usual->show(page);
    auto lines = m_usual->read(TesseractEngine::Layout::Page, cancelled);
    if (withoutGarbage(lines).isEmpty() && page.height() <= highestLine && !cancelled)
        lines = m_usual->read(TesseractEngine::Layout::OneLine, cancelled);
    readOnceMore(lines, page, cancelled);
    m_usual->show({});
    lines = withoutGarbage(lines);
    correctMisreadings(lines);
    return lines;
}

/// The lines that make no sense, with the other models.
void TesseractRecognizer::readOnceMore(
    QList<FoundLine>& lines, const QImage& page, const std::atomic<bool>& cancelled)
{
    const auto isDoubtful = [](const FoundLine& line) {
        return line.confidence() < doubtfulConfidence && !line.isEmpty();
    };
    if (m_choice.others.isEmpty() || std::none_of(lines.begin(), lines.end(), isDoubtful))
        return;
    if (!m_others)
        m_others = TesseractEngine::load(m_choice.others);
    if (!m_others)
        return;
    m_others->show(page);
    for (auto& line : lines) {
        if (!isDoubtful(line) || cancelled)
            continue;
        if (auto other = m_others->readLine(line.box, cancelled);
            other.confidence() > line.confidence())
            line = std::move(other);
    }
    m_others->show({});
}
