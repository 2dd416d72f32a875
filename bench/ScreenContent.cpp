// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/ScreenContent.h"

#include "bench/SamplePhoto.h"
#include "bench/SampleText.h"

#include <QPainter>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr double titleHeight = 32;

QFont fontOf(const QString& family, int size)
{
    QFont font(family);
    font.setPixelSize(size);
    return font;
}

QFont sans(int size)
{
    return fontOf(u"DejaVu Sans"_s, size);
}

QFont mono(int size)
{
    return fontOf(u"DejaVu Sans Mono"_s, size);
}

QColor syntaxColour(const QString& token)
{
    static const QStringList keywords {u"auto"_s, u"const"_s, u"if"_s, u"int"_s, u"return"_s,
        u"this"_s, u"default"_s, u"string"_s};
    if (token.startsWith(u"//"_s) || token.startsWith(u'*') || token.startsWith(u"/*"_s))
        return 0x7a7e85;
    if (token.startsWith(u'"'))
        return 0x6aab73;
    if (keywords.contains(token))
        return 0xcf8e6d;
    if (token[0].isDigit())
        return 0x2aacb8;
    if (token[0].isUpper())
        return 0xc77dbb;
    return 0xbcbec4;
}

/// Draws windows with something in them. Measures are points, of which a screen is 1920 wide.
class Artist final {
public:
    explicit Artist(QImage& image)
        : m_painter(&image)
        , m_pixelsPerPoint(image.width() / 1920.0)
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.scale(m_pixelsPerPoint, m_pixelsPerPoint);
    }

    QPainter& painter() { return m_painter; }

    void wallpaper(QRectF screen);
    void editor(QRectF frame, quint32 seed);
    void document(QRectF frame);
    void fileManager(QRectF frame);
    void photoViewer(QRectF frame);
    void taskBar(QRectF area);

private:
    enum class Theme { Light, Dark };

    /// Draws its frame and returns what is left for the contents.
    QRectF window(QRectF frame, const QString& title, Theme theme);
    void photo(QRectF area, quint32 seed);
    void codeLine(QPointF base, const QString& line);
    void sideBar(QRectF area);
    void miniature(QRectF area, const QStringList& lines);

    QPainter m_painter;
    double m_pixelsPerPoint;
};

void Artist::wallpaper(QRectF screen)
{
    QLinearGradient sky(screen.topLeft(), screen.bottomRight());
    sky.setColorAt(0, 0x1b2a6b);
    sky.setColorAt(0.5, 0x8a3f9c);
    sky.setColorAt(1, 0xf28b5a);
    m_painter.fillRect(screen, sky);
    for (int i = 0; i < 6; ++i) {
        const QPointF centre(
            screen.width() * (0.1 + 0.17 * i), screen.height() * (0.2 + 0.13 * ((i * 3) % 5)));
        QRadialGradient glow(centre, screen.height() * 0.4);
        glow.setColorAt(0, QColor(255, 255, 255, 50));
        glow.setColorAt(1, QColor(255, 255, 255, 0));
        m_painter.fillRect(screen, glow);
    }
}

QRectF Artist::window(QRectF frame, const QString& title, Theme theme)
{
    const bool dark = theme == Theme::Dark;
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(QColor(0, 0, 0, 3));
    for (double blur = 18; blur > 0; blur -= 1 / m_pixelsPerPoint)
        m_painter.drawRoundedRect(
            frame.adjusted(-blur, 4 - blur, blur, 4 + blur), 8 + blur, 8 + blur);
    m_painter.setBrush(dark ? QColor(0x2b2d30) : QColor(0xf4f5f6));
    m_painter.drawRoundedRect(frame, 8, 8);
    int lights = 0;
    for (const QColor light : {0xff5f57, 0xfebc2e, 0x28c840}) {
        m_painter.setBrush(light);
        m_painter.drawEllipse(frame.topLeft() + QPointF(18 + 20 * lights++, 16), 6, 6);
    }
    QFont bold = sans(12);
    bold.setBold(true);
    m_painter.setFont(bold);
    m_painter.setPen(dark ? QColor(0xdddddd) : QColor(0x333333));
    m_painter.drawText(
        QRectF(frame.x(), frame.y(), frame.width(), titleHeight), Qt::AlignCenter, title);
    return frame.adjusted(0, titleHeight, 0, -8);
}

void Artist::photo(QRectF area, quint32 seed)
{
    const QSizeF pixels = area.size() * m_pixelsPerPoint;
    m_painter.drawImage(area, samplePhoto(pixels.toSize(), seed));
}

void Artist::codeLine(QPointF base, const QString& line)
{
    static const QRegularExpression tokens(
        u"(//.*|/?\\*.*|\"[^\"]*\"|\\b[a-zA-Z_]\\w*\\b|\\d+|\\S)"_s);
    const double advance = QFontMetricsF(m_painter.font()).horizontalAdvance(u'm');
    for (auto matches = tokens.globalMatch(line); matches.hasNext();) {
        const auto match = matches.next();
        if (match.captured().isEmpty())
            continue;
        m_painter.setPen(syntaxColour(match.captured()));
        m_painter.drawText(
            base + QPointF(double(match.capturedStart()) * advance, 0), match.captured());
    }
}

void Artist::sideBar(QRectF area)
{
    m_painter.fillRect(area, QColor(0x2b2d30));
    m_painter.setFont(sans(12));
    m_painter.setPen(0xbcbec4);
    const auto names = SampleText::prose(200, 3).remove(u',').remove(u'.').split(u' ');
    double y = area.y() + 10;
    for (int i = 0; i < names.size() && y < area.bottom(); ++i, y += 22) {
        m_painter.fillRect(
            QRectF(area.x() + 14, y + 3, 12, 12), QColor::fromHsv((i * 47) % 360, 120, 190));
        m_painter.drawText(
            QRectF(area.x() + 32, y, 166, 20), Qt::AlignVCenter, names[i].toLower() + u".h"_s);
    }
}

void Artist::miniature(QRectF area, const QStringList& lines)
{
    m_painter.fillRect(area, QColor(0x1e1f22));
    double y = area.y();
    for (int i = 0; i < lines.size() && y < area.bottom(); ++i, y += 2) {
        const auto indent = lines[i].size() - QStringView(lines[i]).trimmed().size();
        m_painter.fillRect(QRectF(area.x() + double(indent), y,
                               double(std::min<qsizetype>(lines[i].size(), 80) - indent), 1),
            QColor(0x6f, 0x73, 0x7a, 120));
    }
}

void Artist::editor(QRectF frame, quint32 seed)
{
    constexpr double lineHeight = 20;
    constexpr double sideWidth = 200;
    const auto contents = window(frame, u"Sequence.h - editor"_s, Theme::Dark);
    const auto text = contents.adjusted(0, 0, 0, -14);
    m_painter.save();
    m_painter.setClipRect(text);
    m_painter.fillRect(text, QColor(0x1e1f22));
    sideBar({text.topLeft(), QSizeF(sideWidth, text.height())});
    m_painter.setFont(mono(13));
    const auto lines = SampleText::code(600, seed);
    double y = text.y() + 6;
    for (int i = 0; i < lines.size() && y < text.bottom(); ++i, y += lineHeight) {
        if (i == 12)
            m_painter.fillRect(
                QRectF(text.x() + sideWidth, y, text.width(), lineHeight), QColor(0x26282e));
        m_painter.setPen(0x4b5059);
        m_painter.drawText(QRectF(text.x() + sideWidth, y, 44, lineHeight),
            Qt::AlignRight | Qt::AlignVCenter, QString::number(i + 101));
        codeLine({text.x() + sideWidth + 56, y + 15}, lines[i]);
    }
    miniature({text.right() - 90, text.y(), 90, text.height()}, lines);
    m_painter.restore();
}

void Artist::document(QRectF frame)
{
    const auto contents = window(frame, u"Document - reader"_s, Theme::Light);
    m_painter.save();
    m_painter.setClipRect(contents);
    m_painter.fillRect(contents, Qt::white);
    m_painter.setPen(Qt::black);
    m_painter.setFont(fontOf(u"DejaVu Serif"_s, 26));
    m_painter.drawText(contents.topLeft() + QPointF(40, 50), u"Release notes and reference"_s);
    m_painter.setFont(sans(14));
    m_painter.setPen(0x222222);
    m_painter.drawText(
        contents.adjusted(40, 80, -40, 0), Qt::TextWordWrap, SampleText::prose(1200, 8));
    m_painter.restore();
}

void Artist::fileManager(QRectF frame)
{
    const auto contents = window(frame, u"Pictures"_s, Theme::Light);
    m_painter.save();
    m_painter.setClipRect(contents);
    m_painter.fillRect(contents, QColor(0xfafafa));
    m_painter.setFont(sans(11));
    int number = 0;
    for (double y = contents.y() + 16; y < contents.bottom(); y += 120) {
        for (double x = contents.x() + 16; x < contents.right() - 90; x += 110, ++number) {
            const QRectF icon(x, y, 84, 70);
            if (number % 3 == 0) {
                photo(icon, quint32(number) + 3);
            } else {
                QLinearGradient shade(icon.topLeft(), icon.bottomLeft());
                const auto colour = QColor::fromHsv((number * 67) % 360, 150, 230);
                shade.setColorAt(0, colour.lighter(115));
                shade.setColorAt(1, colour.darker(115));
                m_painter.setPen(Qt::NoPen);
                m_painter.setBrush(shade);
                m_painter.drawRoundedRect(icon, 8, 8);
                m_painter.setBrush(QColor(255, 255, 255, 150));
                m_painter.drawEllipse(icon.center(), 18, 18);
            }
            m_painter.setPen(0x333333);
            m_painter.drawText(QRectF(x - 8, y + 74, 100, 18), Qt::AlignCenter,
                u"IMG_%1.png"_s.arg(1000 + number * 7));
        }
    }
    m_painter.restore();
}

void Artist::photoViewer(QRectF frame)
{
    photo(window(frame, u"holiday_0231.jpg"_s, Theme::Dark), 77);
}

void Artist::taskBar(QRectF area)
{
    m_painter.fillRect(area, QColor(20, 20, 30, 215));
    m_painter.setPen(Qt::NoPen);
    for (int i = 0; i < 12; ++i) {
        m_painter.setBrush(QColor::fromHsv(i * 30, 170, 220));
        m_painter.drawRoundedRect(QRectF(12 + i * 38, area.y() + 4, 28, 28), 6, 6);
    }
    m_painter.setFont(sans(13));
    m_painter.setPen(Qt::white);
    m_painter.drawText(area.adjusted(0, 0, -10, 0), Qt::AlignRight | Qt::AlignVCenter, u"14:32"_s);
}

void drawDesk(Artist& artist, QRectF screen)
{
    artist.wallpaper(screen);
    artist.editor({60, 50, 980, 640}, 1);
    artist.document({1080, 40, 640, 520});
    artist.fileManager({1180, 480, 620, 480});
    artist.photoViewer({420, 560, 640, 430});
    artist.taskBar({0, screen.height() - 36, screen.width(), 36});
}

void drawEditors(Artist& artist, QRectF screen)
{
    const QRectF area = screen.adjusted(0, 0, 0, -30);
    const double left = area.width() * 0.62;
    const double upper = area.height() * 0.6;
    artist.painter().fillRect(screen, QColor(0x1e1f22));
    artist.editor({0, 0, left, area.height()}, 1);
    artist.editor({left, 0, area.width() - left, upper}, 5);
    artist.editor({left, upper, area.width() - left, area.height() - upper}, 9);
    artist.painter().fillRect(QRectF(0, area.height(), screen.width(), 30), QColor(0x18181a));
}

void drawTerminal(QPainter& painter, QRectF screen)
{
    painter.fillRect(screen, QColor(0x0c0c0c));
    painter.setFont(mono(14));
    painter.setPen(0xcccccc);
    const auto lines = SampleText::code(200, 2);
    double y = 20;
    for (int i = 0; i < lines.size() && y < screen.height(); ++i, y += 21) {
        painter.drawText(QPointF(8, y), lines[i]);
        painter.drawText(QPointF(screen.width() / 2 + 8, y), lines[(i * 7) % lines.size()]);
    }
}

} // namespace

QString nameOf(ScreenContent content)
{
    switch (content) {
    case ScreenContent::Desk:
        return u"desk"_s;
    case ScreenContent::Editor:
        return u"editor"_s;
    case ScreenContent::Term:
        return u"term"_s;
    case ScreenContent::Photo:
        return u"photo"_s;
    }
    return {};
}

std::optional<ScreenContent> screenContentNamed(const QString& name)
{
    for (const auto content : allScreenContents) {
        if (nameOf(content) == name)
            return content;
    }
    return std::nullopt;
}

QImage drawScreen(ScreenContent content, QSize size)
{
    if (content == ScreenContent::Photo)
        return samplePhoto(size, 5);
    QImage image(size, QImage::Format_RGB32);
    Artist artist(image);
    const QRectF screen(0, 0, 1920, 1920.0 * size.height() / size.width());
    if (content == ScreenContent::Desk)
        drawDesk(artist, screen);
    else if (content == ScreenContent::Editor)
        drawEditors(artist, screen);
    else
        drawTerminal(artist.painter(), screen);
    return image;
}
