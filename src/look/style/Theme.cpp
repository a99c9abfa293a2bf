#include "look/style/Theme.h"

#include "look/style/DeskStyle.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QPalette>
#include <QStyle>
#include <QToolTip>
#include <QWidget>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct TokenValue
{
    QLatin1StringView name;
    QRgb light;
    QRgb dark;
};

constexpr std::array kTokens{
    // grounds, from the back to the front
    TokenValue{"background"_L1, 0xfff3f5f8, 0xff14181d},
    TokenValue{"rail"_L1, 0xffe9edf2, 0xff10141a},
    TokenValue{"surface"_L1, 0xffffffff, 0xff1b2129},
    TokenValue{"raised"_L1, 0xfff7f9fb, 0xff232c36},
    TokenValue{"raisedHover"_L1, 0xffeef2f6, 0xff2b3642},
    TokenValue{"raisedPressed"_L1, 0xffe3e9ef, 0xff1f2730},
    TokenValue{"hover"_L1, 0xffedf2f8, 0xff232c37},
    TokenValue{"railHover"_L1, 0xffdfe5ec, 0xff19202a},
    TokenValue{"field"_L1, 0xffffffff, 0xff171c23},
    // lines: 1 px separators, borders of buttons, borders of fields and check boxes
    TokenValue{"line"_L1, 0xffd5dce4, 0xff2f3a46},
    TokenValue{"rowLine"_L1, 0xffe3e8ee, 0xff28323d},
    TokenValue{"edge"_L1, 0xffbcc6d1, 0xff3b4856},
    TokenValue{"control"_L1, 0xff7f8b98, 0xff6b7a8a},
    // writing
    TokenValue{"text"_L1, 0xff1b232c, 0xffe6ebf0},
    TokenValue{"muted"_L1, 0xff566473, 0xff9aa7b5},
    TokenValue{"disabled"_L1, 0xff818d9a, 0xff768391},
    // selection, focus and links
    TokenValue{"accent"_L1, 0xff1b66bb, 0xff58a3ec},
    TokenValue{"accentGround"_L1, 0xffdceafa, 0xff1a3552},
    // filled buttons and what is written on them
    TokenValue{"primary"_L1, 0xff1f6fc9, 0xff2b74c9},
    TokenValue{"primaryHover"_L1, 0xff1a62b3, 0xff2a6fc0},
    TokenValue{"primaryPressed"_L1, 0xff16559c, 0xff215fa8},
    TokenValue{"danger"_L1, 0xffc23934, 0xffc8403b},
    TokenValue{"dangerHover"_L1, 0xffa92f2b, 0xffbd3833},
    TokenValue{"dangerPressed"_L1, 0xff912724, 0xffa3302c},
    TokenValue{"onFilled"_L1, 0xffffffff, 0xffffffff},
    // states, each with a quiet ground of its own
    TokenValue{"ok"_L1, 0xff17774d, 0xff43b784},
    TokenValue{"okGround"_L1, 0xffdff3e9, 0xff17332a},
    TokenValue{"warning"_L1, 0xff8f5a00, 0xffe0a13a},
    TokenValue{"warningGround"_L1, 0xfffbeed3, 0xff3a2d17},
    TokenValue{"bad"_L1, 0xffb9322d, 0xffef7a74},
    TokenValue{"badGround"_L1, 0xfffbe6e4, 0xff3b211f},
};

constexpr auto kTokenNames = [] {
    std::array<QLatin1StringView, kTokens.size()> names;
    for (size_t i = 0; i < kTokens.size(); ++i)
        names[i] = kTokens[i].name;
    return names;
}();

struct ThemeState
{
    Scheme scheme = Scheme::Light;
    bool applied = false;
    QFont body;
    QStringList leadingFamilies;
    ThemeNotifier notifier;
};

ThemeState& State()
{
    static ThemeState state;
    return state;
}

// The desktop's size with a face that has every script of the 14 languages through fallback; never smaller than 13 px
// at 96 dots an inch.
QFont BodyFont()
{
    QFont font = QApplication::font();
    QStringList families;
    for (const QString& family : {u"Noto Sans"_s, u"DejaVu Sans"_s})
        if (QFontDatabase::hasFamily(family))
            families.append(family);
    families.append(font.families());
    font.setFamilies(families);
    font.setPointSizeF(std::max(font.pointSizeF(), 9.75));
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

QPalette DeskPalette()
{
    const auto set = [](QPalette& palette, QPalette::ColorRole role, QLatin1StringView token) {
        palette.setColor(role, Token(token));
    };
    QPalette palette;
    set(palette, QPalette::Window, "background"_L1);
    set(palette, QPalette::WindowText, "text"_L1);
    set(palette, QPalette::Base, "surface"_L1);
    set(palette, QPalette::AlternateBase, "raised"_L1);
    set(palette, QPalette::Text, "text"_L1);
    set(palette, QPalette::PlaceholderText, "muted"_L1);
    set(palette, QPalette::Button, "raised"_L1);
    set(palette, QPalette::ButtonText, "text"_L1);
    set(palette, QPalette::BrightText, "bad"_L1);
    set(palette, QPalette::Highlight, "accentGround"_L1);
    set(palette, QPalette::HighlightedText, "text"_L1);
    set(palette, QPalette::Link, "accent"_L1);
    set(palette, QPalette::LinkVisited, "accent"_L1);
    set(palette, QPalette::ToolTipBase, "raised"_L1);
    set(palette, QPalette::ToolTipText, "text"_L1);
    set(palette, QPalette::Light, "surface"_L1);
    set(palette, QPalette::Midlight, "raised"_L1);
    set(palette, QPalette::Mid, "line"_L1);
    set(palette, QPalette::Dark, "edge"_L1);
    palette.setColor(QPalette::Shadow, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, Token("disabled"_L1));
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, Token("disabled"_L1));
    palette.setColor(QPalette::Disabled, QPalette::Base, Token("raised"_L1));
    return palette;
}

// Marked text in a field stands out more than a selected row, which keeps its writing.
QPalette FieldPalette(QPalette palette)
{
    palette.setColor(QPalette::Highlight, Token("primary"_L1));
    palette.setColor(QPalette::HighlightedText, Token("onFilled"_L1));
    return palette;
}

QString StyleSheet()
{
    QFile file(u":/look/theme/desk.qss"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = QString::fromUtf8(file.readAll());
    for (const TokenValue& token : kTokens)
        sheet.replace(QString(u'@' + token.name + u'@'), Token(token.name).name());
    const qreal points = State().body.pointSizeF();
    const std::pair<QLatin1StringView, qreal> sizes[] = {
        {"size.title"_L1, 1.35}, {"size.headline"_L1, 1.15}, {"size.card"_L1, 1.06}, {"size.small"_L1, 0.92}};
    for (const auto& [name, factor] : sizes)
        sheet.replace(QString(u'@' + name + u'@'), QString::number(points * factor, 'f', 2) + u"pt"_s);
    sheet.replace("@mono@"_L1, MonoFont().families().first());
    return sheet;
}

void Repolish(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->updateGeometry();
    widget->update();
}

} // namespace

// Q_INIT_RESOURCE has to stand outside every namespace.
static void InitialiseLookResources()
{
    Q_INIT_RESOURCE(look);
}

Scheme InitialScheme()
{
    const QByteArray wanted = qgetenv("RIGGING_DESK_THEME").toLower();
    if (wanted == "light")
        return Scheme::Light;
    if (wanted == "dark")
        return Scheme::Dark;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness()
               ? Scheme::Dark
               : Scheme::Light;
}

void ApplyTheme(QApplication& application, Scheme scheme)
{
    InitialiseLookResources();
    ThemeState& state = State();
    state.scheme = scheme;
    if (!std::exchange(state.applied, true)) {
        state.body = BodyFont();
        QApplication::setStyle(new DeskStyle);
        QApplication::setFont(state.body);
    }
    const QPalette palette = DeskPalette();
    QApplication::setPalette(palette);
    for (const char* field : {"QLineEdit", "QTextEdit", "QPlainTextEdit", "QAbstractSpinBox", "QLabel"})
        QApplication::setPalette(FieldPalette(palette), field);
    QToolTip::setPalette(palette);
    application.setStyleSheet(StyleSheet());
    emit state.notifier.schemeChanged(scheme);
}

void SetBodyFamilies(const QStringList& leading)
{
    ThemeState& state = State();
    if (!state.applied || state.leadingFamilies == leading)
        return;
    QStringList families = leading;
    families.removeIf([](const QString& family) { return !QFontDatabase::hasFamily(family); });
    const QStringList present = state.body.families();
    for (const QString& family : present)
        if (!state.leadingFamilies.contains(family) && !families.contains(family))
            families.append(family);
    state.leadingFamilies = leading;
    if (families == present)
        return;
    state.body.setFamilies(families);
    QApplication::setFont(state.body);
    emit state.notifier.schemeChanged(state.scheme);
}

Scheme CurrentScheme()
{
    return State().scheme;
}

ThemeNotifier& ThemeEvents()
{
    return State().notifier;
}

QColor Token(Scheme scheme, QLatin1StringView name)
{
    for (const TokenValue& token : kTokens)
        if (token.name == name)
            return QColor::fromRgba(scheme == Scheme::Dark ? token.dark : token.light);
    qWarning("no colour token %.*s", static_cast<int>(name.size()), name.data());
    return {};
}

QColor Token(QLatin1StringView name)
{
    return Token(State().scheme, name);
}

std::span<const QLatin1StringView> TokenNames()
{
    return kTokenNames;
}

QFont DeskFont(qreal factor, bool bold)
{
    QFont font = State().applied ? State().body : QApplication::font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(bold ? QFont::DemiBold : QFont::Normal);
    return font;
}

QFont MonoFont(qreal factor)
{
    // Looked up once: delegates ask for every cell, and the question goes through the whole font configuration.
    static const QStringList families = [] {
        QStringList found{u"DejaVu Sans Mono"_s, u"Noto Sans Mono"_s};
        found.removeIf([](const QString& family) { return !QFontDatabase::hasFamily(family); });
        return found + QFontDatabase::systemFont(QFontDatabase::FixedFont).families();
    }();
    QFont font = DeskFont(factor);
    font.setFamilies(families);
    font.setStyleHint(QFont::Monospace);
    return font;
}

int TableRowHeight()
{
    const int height = std::max(34, QFontMetrics(DeskFont()).height() + 14);
    return height + height % 2;
}

void SetKind(QWidget* widget, QLatin1StringView kind)
{
    widget->setProperty("kind", QString(kind));
    Repolish(widget);
}

void SetRole(QWidget* widget, QLatin1StringView role)
{
    widget->setProperty("role", QString(role));
    Repolish(widget);
}
