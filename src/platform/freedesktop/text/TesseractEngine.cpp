// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/TesseractEngine.h"

#include "platform/freedesktop/text/PageImage.h"

#include <leptonica/allheaders.h>
#include <tesseract/ocrclass.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace tesseract;

/// Of libgomp, which Tesseract brings along; its header is the compiler's own.
extern "C" void setMostThreadLevels(int levels) asm("omp_set_max_active_levels");

namespace {

/// What bestScale is in the dots per inch that Tesseract wants told.
constexpr int resolution = int(96 * PageImage::bestScale);

/// What is seen around a line that is read once more.
constexpr int lineMargin = 6;

std::unique_ptr<TessBaseAPI> silentApi()
{
    setMsgSeverity(L_SEVERITY_NONE);
    auto api = std::make_unique<TessBaseAPI>();
    api->SetVariable("debug_file", "/dev/null");
    return api;
}

bool init(TessBaseAPI& api, const QStringList& models)
{
    // The data that Debian packages is of this kind alone, and with dictionaries.
    return api.Init(nullptr, models.join(u'+').toUtf8().constData(), OEM_LSTM_ONLY) == 0;
}

bool isCancelled(void* flag, int)
{
    return *static_cast<const std::atomic<bool>*>(flag);
}

QRect boxAt(const ResultIterator& place, PageIteratorLevel level)
{
    int left = 0, top = 0, right = 0, bottom = 0;
    place.BoundingBox(level, &left, &top, &right, &bottom);
    return {left, top, right - left, bottom - top};
}

/// The mean over the characters of the word that the iterator stands on.
double confidenceAt(ResultIterator symbol)
{
    double sum = 0;
    int count = 0;
    do {
        sum += double(symbol.Confidence(RIL_SYMBOL));
        ++count;
    } while (!symbol.IsAtFinalElement(RIL_WORD, RIL_SYMBOL) && symbol.Next(RIL_SYMBOL));
    return sum / count;
}

FoundWord wordAt(const ResultIterator& word)
{
    const std::unique_ptr<const char[]> text(word.GetUTF8Text(RIL_WORD));
    const QRect box = boxAt(word, RIL_WORD);
    int left = 0, baseline = 0, right = 0, rightBaseline = 0;
    word.Baseline(RIL_WORD, &left, &baseline, &right, &rightBaseline);
    return {QString::fromUtf8(text.get()).simplified(), box, confidenceAt(word),
        box.bottom() + 1 - baseline};
}

/// The line that a word begins; the iterator is moved to its last word.
FoundLine lineFrom(ResultIterator& word)
{
    FoundLine line {{}, boxAt(word, RIL_TEXTLINE)};
    while (true) {
        // An image among the text comes as a word of spaces, without any doubt.
        if (auto found = wordAt(word); !found.text.isEmpty())
            line.words << std::move(found);
        if (word.IsAtFinalElement(RIL_TEXTLINE, RIL_WORD) || !word.Next(RIL_WORD))
            return line;
    }
}

} // namespace

TesseractEngine::TesseractEngine(std::unique_ptr<TessBaseAPI> api)
    : m_api(std::move(api))
{
}

QStringList TesseractEngine::installed()
{
    const auto api = silentApi();
    init(*api, {u"none"_s}); // Fails, and knows the folder then.
    std::vector<std::string> names;
    api->GetAvailableLanguagesAsVector(&names);
    QStringList models;
    for (const auto& name : names)
        models << QString::fromStdString(name);
    models.sort();
    return models;
}

std::unique_ptr<TesseractEngine> TesseractEngine::load(const QStringList& models)
{
    auto api = silentApi();
    if (!init(*api, models))
        return nullptr;
    return std::unique_ptr<TesseractEngine>(new TesseractEngine(std::move(api)));
}

void TesseractEngine::show(const QImage& page)
{
    if (page.isNull())
        return m_api->Clear();
    m_api->SetImage(page.constBits(), page.width(), page.height(), 1, int(page.bytesPerLine()));
    m_api->SetSourceResolution(resolution);
}

QList<FoundLine> TesseractEngine::read(Layout layout, const std::atomic<bool>& cancelled)
{
    // In each thread that reads. Otherwise threads of OpenMP spin beside it, and as soon as another
    // program wants one of the processors, this takes ten times as long.
    setMostThreadLevels(0);
    m_api->SetPageSegMode(layout == Layout::Page ? PSM_AUTO : PSM_SINGLE_LINE);
    ETEXT_DESC monitor;
    monitor.cancel = isCancelled;
    monitor.cancel_this = const_cast<std::atomic<bool>*>(&cancelled);
    QList<FoundLine> lines;
    if (m_api->Recognize(&monitor) != 0 || cancelled)
        return lines;
    const std::unique_ptr<ResultIterator> word(m_api->GetIterator());
    if (!word || word->Empty(RIL_WORD))
        return lines;
    do
        lines << lineFrom(*word);
    while (word->Next(RIL_WORD));
    return lines;
}

FoundLine TesseractEngine::readLine(QRect box, const std::atomic<bool>& cancelled)
{
    const QRect seen = box.adjusted(-lineMargin, -lineMargin, lineMargin, lineMargin);
    m_api->SetRectangle(seen.x(), seen.y(), seen.width(), seen.height());
    const auto lines = read(Layout::OneLine, cancelled);
    return lines.isEmpty() ? FoundLine {} : lines.first();
}
