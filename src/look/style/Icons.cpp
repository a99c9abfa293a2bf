#include "look/style/Icons.h"

#include "look/style/Theme.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QtMath>
#include <algorithm>

using namespace Qt::StringLiterals;

// Q_INIT_RESOURCE has to stand outside every namespace.
static void InitialiseLookResources()
{
    Q_INIT_RESOURCE(look);
}

namespace {

QByteArray ReadResource(const QString& path)
{
    InitialiseLookResources();
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString IconPath(QLatin1StringView name)
{
    return u":/look/icons/"_s + name + u".svg"_s;
}

// Icons that point along the reading direction.
bool IsDirectional(QLatin1StringView name)
{
    constexpr std::array kDirectional{"back"_L1, "next"_L1, "exit"_L1,     "first"_L1,
                                      "last"_L1, "log"_L1,  "previous"_L1, "following"_L1};
    return std::find(kDirectional.begin(), kDirectional.end(), name) != kDirectional.end();
}

QPixmap RenderSvg(const QByteArray& svg, const QSize& pixels, bool mirrored)
{
    QSvgRenderer renderer(svg);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPixmap pixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    if (mirrored) {
        painter.translate(pixels.width(), 0);
        painter.scale(-1, 1);
    }
    renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    return pixmap;
}

QSize DevicePixels(const QSize& size, qreal ratio)
{
    return {qCeil(size.width() * ratio), qCeil(size.height() * ratio)};
}

// Draws the icon anew for the live scheme each time; pictures are cached by name, size and colour.
class LineIconEngine : public QIconEngine
{
public:
    LineIconEngine(QLatin1StringView name, QLatin1StringView token)
        : m_name(name.data(), name.size())
        , m_token(token.data(), token.size())
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        const int side = std::min(rect.width(), rect.height());
        const QRect square(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, side, side);
        painter->drawPixmap(square, IconPixmap(name(), square.size(), colour(mode), ratio));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override
    {
        return IconPixmap(name(), size, colour(mode), 1.0);
    }

    QIconEngine* clone() const override { return new LineIconEngine(name(), QLatin1StringView(m_token)); }
    QString key() const override { return u"desk-line"_s; }
    QString iconName() override { return u"desk:"_s + name(); }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }

private:
    QLatin1StringView name() const { return QLatin1StringView(m_name); }
    QColor colour(QIcon::Mode mode) const
    {
        if (mode == QIcon::Disabled)
            return Token("disabled"_L1);
        if (!m_token.isEmpty())
            return Token(QLatin1StringView(m_token));
        return Token(mode == QIcon::Selected ? "accent"_L1 : "text"_L1);
    }

    QByteArray m_name;
    QByteArray m_token;
};

} // namespace

QPixmap IconPixmap(QLatin1StringView name, const QSize& size, const QColor& colour, qreal ratio)
{
    const bool mirrored = IsDirectional(name) && QGuiApplication::isRightToLeft();
    const QSize pixels = DevicePixels(size, ratio);
    const QString key = u"desk/%1/%2x%3/%4/%5"_s.arg(name)
                            .arg(pixels.width())
                            .arg(pixels.height())
                            .arg(colour.rgba())
                            .arg(mirrored ? 1 : 0);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        QByteArray svg = ReadResource(IconPath(name));
        if (svg.isEmpty())
            return {};
        svg.replace("currentColor", colour.name().toLatin1());
        pixmap = RenderSvg(svg, pixels, mirrored);
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QIcon Icon(QLatin1StringView name)
{
    return Icon(name, {});
}

QIcon Icon(QLatin1StringView name, QLatin1StringView token)
{
    InitialiseLookResources();
    if (!QFile::exists(IconPath(name))) {
        qWarning("no icon %.*s", static_cast<int>(name.size()), name.data());
        return {};
    }
    return QIcon(new LineIconEngine(name, token));
}

QPixmap Illustration(QLatin1StringView name, qreal ratio)
{
    QByteArray svg = ReadResource(IconPath(name));
    if (svg.isEmpty())
        return {};
    // The file is drawn in the dark scheme's colours: exchange them for the live one's, by way of a mark so that no
    // colour is exchanged twice.
    const auto mark = [](QLatin1StringView token) -> QByteArray {
        return QByteArray("@").append(token.data(), token.size()).append('@');
    };
    for (const QLatin1StringView token : TokenNames())
        svg.replace(Token(Scheme::Dark, token).name().toLatin1(), mark(token));
    for (const QLatin1StringView token : TokenNames())
        svg.replace(mark(token), Token(token).name().toLatin1());
    QPixmap pixmap = RenderSvg(svg, DevicePixels({120, 88}, ratio), false);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QIcon ProgramIcon()
{
    InitialiseLookResources();
    const QByteArray svg = ReadResource(IconPath("program"_L1));
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(RenderSvg(svg, {side, side}, false));
    return icon;
}

QIcon Flag(int language)
{
    const QByteArray svg =
        language >= 1 && language <= 14 ? ReadResource(u":/look/flags/%1.svg"_s.arg(language)) : QByteArray();
    if (svg.isEmpty())
        return {};
    QIcon icon;
    for (const int width : {24, 36, 48, 72, 96}) {
        const QPixmap flat = RenderSvg(svg, {width, width * 2 / 3}, false);
        const qreal unit = width / 24.0;
        QPixmap rounded(flat.size());
        rounded.fill(Qt::transparent);
        QPainter painter(&rounded);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath outline;
        outline.addRoundedRect(QRectF(rounded.rect()), 2 * unit, 2 * unit);
        painter.setBrush(QBrush(flat));
        painter.setPen(Qt::NoPen);
        painter.drawPath(outline);
        // A hairline keeps white fields apart from a white ground, and dark ones from a dark ground.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(128, 138, 148, 130), unit));
        painter.drawRoundedRect(QRectF(rounded.rect()).adjusted(unit / 2, unit / 2, -unit / 2, -unit / 2), 1.5 * unit,
                                1.5 * unit);
        painter.end();
        icon.addPixmap(rounded);
        icon.addPixmap(rounded, QIcon::Selected); // colours stay true in a selected row
    }
    return icon;
}
