#include "tests/TestMain.h"

#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/tables/StatusDelegate.h"
#include "look/tables/Tables.h"
#include "look/widgets/Card.h"
#include "look/widgets/Fields.h"
#include "look/widgets/NavRail.h"
#include "look/widgets/PageHeader.h"
#include "look/widgets/PasswordField.h"
#include "look/widgets/StatusLabel.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>
#include <cmath>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

// WCAG 2 relative luminance and contrast.
double Luminance(const QColor& colour)
{
    const auto channel = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) + 0.0722 * channel(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double first = Luminance(a);
    const double second = Luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

// Number of distinct colours with at least some ink; 0 for an empty picture.
int InkColours(const QPixmap& pixmap)
{
    QSet<QRgb> colours;
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 100)
                colours.insert(image.pixel(x, y) | 0xff000000);
    return static_cast<int>(colours.size());
}

struct ThemeGuard
{
    ~ThemeGuard()
    {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        ApplyTheme(*qApp, Scheme::Light);
    }
};

// A window with a control of every kind whose face depends on the scheme.
std::unique_ptr<QWidget> MakeSample()
{
    auto sample = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout(sample.get());
    auto* header = new PageHeader;
    header->setTitle(u"NVR Overview"_s);
    header->setSubtitle(u"Recorders"_s);
    header->setUser(u"admin"_s);
    header->setClock(u"2026/11/24 11:20:05"_s);
    column->addWidget(header);
    auto* card = new Card(u"Card"_s);
    auto* primary = new QPushButton(Icon("add"_L1), u"Add"_s);
    SetKind(primary, "primary"_L1);
    auto* box = new QCheckBox(u"Check"_s);
    box->setChecked(true);
    auto* combo = new QComboBox;
    combo->addItem(Icon("nvr"_L1), u"Combo"_s);
    auto* field = new SearchField;
    field->setPlaceholderText(u"Filter"_s);
    auto* status = new StatusLabel;
    status->setStatus(Status::Bad, u"No response"_s);
    auto* bar = new QProgressBar;
    bar->setValue(40);
    for (QWidget* each : std::initializer_list<QWidget*>{primary, box, combo, field, status, bar})
        card->content()->addWidget(each);
    column->addWidget(card);
    auto* model = new QStandardItemModel(2, 2, sample.get());
    model->setHorizontalHeaderLabels({u"Name"_s, u"State"_s});
    model->setData(model->index(0, 0), u"Gatehouse"_s);
    model->setData(model->index(0, 1), u"Connected"_s);
    model->setData(model->index(0, 1), static_cast<int>(Status::Ok), kStatusRole);
    auto* table = new QTableView;
    table->setModel(model);
    StyleTable(table);
    StatusColumn(table, 1);
    column->addWidget(table);
    sample->resize(640, 560);
    return sample;
}

} // namespace

TEST(LookTheme, TextKeepsItsContrastOnEveryGround)
{
    const QList<QLatin1StringView> everywhere{"background"_L1, "rail"_L1,  "railHover"_L1, "surface"_L1,
                                              "raised"_L1,     "field"_L1, "hover"_L1,     "accentGround"_L1};
    const std::tuple<QList<QLatin1StringView>, QList<QLatin1StringView>, double> rules[] = {
        {{"text"_L1, "muted"_L1}, everywhere, 4.5},
        {{"text"_L1}, {"raisedHover"_L1, "raisedPressed"_L1}, 4.5},
        {{"ok"_L1, "warning"_L1, "bad"_L1, "accent"_L1}, {"background"_L1, "surface"_L1, "raised"_L1}, 4.5},
        {{"onFilled"_L1},
         {"primary"_L1, "primaryHover"_L1, "primaryPressed"_L1, "danger"_L1, "dangerHover"_L1, "dangerPressed"_L1},
         4.5},
        {{"ok"_L1}, {"okGround"_L1}, 4.5},
        {{"warning"_L1}, {"warningGround"_L1}, 4.5},
        {{"bad"_L1}, {"badGround"_L1}, 4.5},
        // what is switched off stays readable; borders of fields and the focus ring stay visible
        {{"disabled"_L1}, {"background"_L1, "surface"_L1, "raised"_L1}, 3.0},
        {{"control"_L1}, {"surface"_L1, "field"_L1, "background"_L1, "raised"_L1}, 3.0},
        {{"accent"_L1}, everywhere, 3.0},
    };
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark})
        for (const auto& [inks, grounds, least] : rules)
            for (const auto ink : inks)
                for (const auto ground : grounds)
                    EXPECT_GE(Contrast(Token(scheme, ink), Token(scheme, ground)), least)
                        << (scheme == Scheme::Dark ? "dark " : "light ") << ink.data() << " on " << ground.data();
}

TEST(LookTheme, EnvironmentDecidesBeforeTheDesktop)
{
    const QPalette before = QApplication::palette();
    const auto desktop = [&before](QRgb window, QRgb text) {
        QPalette palette = before;
        palette.setColor(QPalette::Window, QColor(window));
        palette.setColor(QPalette::WindowText, QColor(text));
        QApplication::setPalette(palette);
    };
    const std::tuple<const char*, bool, Scheme> cases[] = {{"", true, Scheme::Dark},
                                                           {"", false, Scheme::Light},
                                                           {"dark", false, Scheme::Dark},
                                                           {"LIGHT", true, Scheme::Light},
                                                           {"purple", true, Scheme::Dark}};
    for (const auto& [environment, darkDesktop, expected] : cases) {
        qputenv("RIGGING_DESK_THEME", environment);
        desktop(darkDesktop ? 0xff202020 : 0xfff0f0f0, darkDesktop ? 0xfff0f0f0 : 0xff202020);
        EXPECT_EQ(InitialScheme(), expected) << environment << darkDesktop;
    }
    qunsetenv("RIGGING_DESK_THEME");
    QApplication::setPalette(before);
}

TEST(LookTheme, SheetLeavesNoTokenUnreplaced)
{
    EXPECT_FALSE(qApp->styleSheet().isEmpty());
    EXPECT_FALSE(qApp->styleSheet().contains(u'@')) << qApp->styleSheet().toStdString();
}

// A window that lives through a switch must look like one made after it: nothing may keep an old colour.
TEST(LookTheme, SwitchedWindowEqualsAFreshOne)
{
    const ThemeGuard guard;
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QApplication::setLayoutDirection(direction);
        ApplyTheme(*qApp, Scheme::Light);
        const auto survivor = MakeSample();
        const QImage light = survivor->grab().toImage();
        ApplyTheme(*qApp, Scheme::Dark);
        const QImage switched = survivor->grab().toImage();
        const QImage fresh = MakeSample()->grab().toImage();
        EXPECT_TRUE(switched == fresh) << "direction " << direction;
        EXPECT_FALSE(switched == light);
    }
}

TEST(LookPictures, EveryIconDrawsInTheColourAskedFor)
{
    const QStringList files = QDir(u":/look/icons"_s).entryList({u"*.svg"_s});
    ASSERT_GE(files.size(), 60);
    for (const QString& file : files) {
        const QByteArray name = file.chopped(4).toLatin1();
        const bool illustration = name.startsWith("empty-");
        const QPixmap pixmap = illustration ? Illustration(QLatin1StringView(name), 1)
                                            : IconPixmap(QLatin1StringView(name), {34, 34}, Qt::red, 1);
        EXPECT_GT(InkColours(pixmap), 0) << name.data();
        if (illustration || name == "program")
            continue;
        const QImage image = pixmap.toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (const QColor pixel = image.pixelColor(x, y); pixel.alpha() > 200) {
                    ASSERT_TRUE(pixel.red() > 240 && pixel.green() < 15 && pixel.blue() < 15) << name.data();
                }
        EXPECT_FALSE(Icon(QLatin1StringView(name)).isNull());
    }
    EXPECT_TRUE(Icon("no-such-icon"_L1).isNull());
    EXPECT_GT(InkColours(ProgramIcon().pixmap(16)), 4);
}

TEST(LookPictures, IconsFollowSchemeAndState)
{
    const ThemeGuard guard;
    const QIcon icon = Icon("stop"_L1);
    const auto ink = [&icon](QIcon::Mode mode) { return icon.pixmap({34, 34}, 1.0, mode).toImage().pixelColor(17, 7); };
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        ApplyTheme(*qApp, scheme);
        EXPECT_EQ(ink(QIcon::Normal).name(), Token("text"_L1).name());
        EXPECT_EQ(ink(QIcon::Selected).name(), Token("accent"_L1).name());
        EXPECT_EQ(ink(QIcon::Disabled).name(), Token("disabled"_L1).name());
    }
}

TEST(LookPictures, ArrowsTurnWithTheReadingDirection)
{
    const ThemeGuard guard;
    const auto picture = [](QLatin1StringView name) { return IconPixmap(name, {34, 34}, Qt::black, 1).toImage(); };
    const QImage back = picture("back"_L1);
    const QImage clock = picture("clock"_L1);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_FALSE(picture("back"_L1) == back);
    EXPECT_TRUE(picture("clock"_L1) == clock);
}

TEST(LookPictures, FourteenFlagsAllDifferent)
{
    QList<QImage> seen;
    for (int language = 1; language <= 14; ++language) {
        const QPixmap flag = Flag(language).pixmap({24, 16});
        EXPECT_EQ(flag.size(), QSize(24, 16));
        EXPECT_GT(InkColours(flag), 1) << language;
        EXPECT_FALSE(seen.contains(flag.toImage())) << language;
        seen.append(flag.toImage());
    }
    for (const int none : {0, -1, 15, 99})
        EXPECT_TRUE(Flag(none).isNull());
}

TEST(LookNavRail, KeyboardWalksTheEntriesOnShow)
{
    NavRail rail;
    for (const auto icon : {"system"_L1, "nvr"_L1, "users"_L1, "tooling"_L1})
        rail.addEntry(icon, QString(icon));
    rail.addBottomEntry("exit"_L1, u"Exit"_s);
    rail.entry(1)->hide();
    rail.entry(2)->setEnabled(false);
    rail.resize(rail.sizeHint());
    rail.show();
    rail.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&rail));
    QSignalSpy clicked(&rail, &NavRail::entryClicked);

    rail.entry(0)->setFocus();
    const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Down, 3}, {Qt::Key_Down, 4}, {Qt::Key_Down, 0}, {Qt::Key_Up, 4},
                                             {Qt::Key_Home, 0}, {Qt::Key_End, 4},  {Qt::Key_Up, 3}};
    for (const auto& [key, focus] : steps) {
        QTest::keyClick(QApplication::focusWidget(), key);
        ASSERT_EQ(QApplication::focusWidget(), rail.entry(focus));
    }
    EXPECT_EQ(rail.currentIndex(), 0) << "walking alone opens no page";
    QTest::keyClick(rail.entry(3), Qt::Key_Return);
    EXPECT_EQ(rail.currentIndex(), 3);
    EXPECT_FALSE(rail.entry(0)->isChecked());
    QTest::mouseClick(rail.entry(4), Qt::LeftButton);
    EXPECT_EQ(rail.currentIndex(), 3) << "the bottom entry is no page";
    EXPECT_EQ(clicked.count(), 2);
    EXPECT_EQ(clicked.last().first().toInt(), 4);
}

TEST(LookNavRail, EntriesAreAnnouncedAsWhatTheyAre)
{
    NavRail rail;
    rail.addEntry("system"_L1, u"System"_s);
    rail.addEntry("nvr"_L1, u"NVR"_s);
    rail.addBottomEntry("exit"_L1, u"Exit"_s);
    QSignalSpy pressed(&rail, &NavRail::entryClicked);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&rail)->role(), QAccessible::PageTabList);
    for (int i = 0; i < 3; ++i) {
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(rail.entry(i));
        EXPECT_EQ(access->role(), i < 2 ? QAccessible::PageTab : QAccessible::Button);
        EXPECT_EQ(access->state().selected, i == 0);
        EXPECT_EQ(access->text(QAccessible::Name), rail.entry(i)->text());
        access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        rail.setCurrentIndex(0);
    }
    EXPECT_EQ(pressed.count(), 3);
}

TEST(LookNavRail, DotHasWords)
{
    NavRail rail;
    NavEntry* entry = rail.addEntry("users"_L1, u"User and group"_s);
    entry->resize(entry->sizeHint());
    const QImage clean = entry->grab().toImage();
    entry->setDirty(true, u"Changes not applied"_s);
    EXPECT_EQ(entry->accessibleDescription(), u"Changes not applied"_s);
    EXPECT_FALSE(entry->grab().toImage() == clean);
    entry->setDirty(false);
    EXPECT_TRUE(entry->accessibleDescription().isEmpty());
    EXPECT_TRUE(entry->grab().toImage() == clean);
}

// However a stored password is edited, the eye never shows a letter of it.
TEST(LookFields, TheEyeShowsTypedPasswordsOnly)
{
    QGuiApplication::clipboard()->setText(u"new"_s);
    const std::tuple<const char*, QList<QKeyCombination>, QString> cases[] = {
        {"typed at the end", {Qt::Key_End, Qt::Key_X}, u"x"_s},
        {"typed into a part chosen", {Qt::Key_Home, Qt::SHIFT | Qt::Key_Right, Qt::Key_X}, u"x"_s},
        {"one letter removed", {Qt::Key_Backspace}, {}},
        {"pasted", {Qt::Key_Home, Qt::CTRL | Qt::Key_V}, u"new"_s},
        {"undone", {Qt::Key_X, Qt::CTRL | Qt::Key_Z}, {}}};
    for (const auto& [what, keys, expected] : cases) {
        SCOPED_TRACE(what);
        PasswordField field;
        field.setEyeTexts(u"Show"_s, u"Hide"_s, u"Stored"_s);
        field.show();
        field.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&field));
        auto* eye = field.findChild<QToolButton*>();
        field.setText(u"secret"_s);
        QTest::mouseClick(&field, Qt::LeftButton, {}, QPoint(20, field.height() / 2));
        eye->click();
        field.setRevealed(true);
        EXPECT_EQ(field.echoMode(), QLineEdit::Password);
        EXPECT_EQ(eye->toolTip(), u"Stored"_s);
        EXPECT_EQ(field.text(), u"secret"_s);
        for (const QKeyCombination& key : keys)
            QTest::keyClick(&field, key.key(), key.keyboardModifiers());
        EXPECT_EQ(field.text(), expected);
        QTest::keyClick(eye, Qt::Key_Space);
        EXPECT_EQ(field.echoMode(), QLineEdit::Normal);
        EXPECT_EQ(eye->accessibleName(), u"Hide"_s);
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_FALSE(field.text().contains(u's')) << field.text().toStdString();
        field.setText(u"other"_s);
        EXPECT_EQ(field.echoMode(), QLineEdit::Password) << "another stored one";
    }
}

// One pixel of every state: hovered, selected, plain; the hover covers the whole row.
TEST(LookCards, AControlWithoutRoomBesideTheTitleGoesBelowIt)
{
    Card card(u"Users of the station"_s);
    auto* list = new QLabel;
    card.content()->addWidget(list);
    auto* control = new QWidget;
    control->setLayout(new QVBoxLayout);
    control->layout()->addWidget(new QPushButton(u"Add another user to the list"_s));
    card.setTitleControl(control);
    card.resize(700, 200);
    card.show();
    const int beside = control->y();
    card.resize(240, 200);
    QCoreApplication::processEvents();
    EXPECT_GT(control->y(), beside + TableRowHeight() / 2);
    EXPECT_LE(control->geometry().bottom(), list->y());
    card.resize(700, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(control->y(), beside);
}

TEST(LookTables, RowsShowHoverAndSelection)
{
    QStandardItemModel model(3, 3);
    QTableView table;
    table.setModel(&model);
    StyleTable(&table);
    table.resize(600, 300);
    table.show();
    table.setCurrentIndex(model.index(1, 1));
    QTest::mouseMove(table.viewport(), QPoint(20, TableRowHeight() / 2));
    ASSERT_TRUE(QTest::qWaitFor([&table] { return table.viewport()->property("deskHoverRow") == QVariant(0); }));
    const QImage image = table.grab().toImage();
    const auto colour = [&](int row, int column) {
        const QRect cell = table.visualRect(model.index(row, column)).translated(table.viewport()->pos());
        return image.pixelColor(cell.right() - 8, cell.top() + 8).name();
    };
    for (const int column : {0, 2}) {
        EXPECT_EQ(colour(0, column), Token("hover"_L1).name());
        EXPECT_EQ(colour(1, column), Token("accentGround"_L1).name());
        EXPECT_EQ(colour(2, column), Token("surface"_L1).name());
    }
}

TEST(LookTables, RowsAndColumnsKeepTheirMeasure)
{
    QStandardItemModel model(1, 3);
    model.setHorizontalHeaderLabels({u"Name"_s, u"State"_s, u"Rest"_s});
    model.setData(model.index(0, 1), u"Connected"_s);
    QTableView table;
    table.setModel(&model);
    StyleTable(&table);
    StatusColumn(&table, 1);
    table.verticalHeader()->setDefaultSectionSize(TableRowHeight() + 20); // so that the measuring is seen
    model.setData(model.index(0, 2), u"Gatehouse North"_s);
    SetColumnWidths(&table, std::array{300, 200});
    table.resize(420, 300);
    table.show();
    EXPECT_TRUE(QTest::qWaitFor([&table] { return table.rowHeight(0) == TableRowHeight(); })) << table.rowHeight(0);
    // The others give the last one what its cells want, as long as they have air.
    EXPECT_GE(table.columnWidth(2), static_cast<QAbstractItemView&>(table).sizeHintForColumn(2));
    // A width that a column has just now because it gave way, and that is wanted from now on, stays.
    const int narrow = table.columnWidth(0);
    ASSERT_LT(narrow, 300);
    SetColumnWidths(&table, std::array{narrow});
    table.resize(900, 300);
    EXPECT_TRUE(QTest::qWaitFor([&table] { return table.columnWidth(1) == 200; }));
    EXPECT_EQ(table.columnWidth(0), narrow);
    // Without room for all cells the less important ones go, and come back as they were.
    LeaveOutColumns(&table, std::array{0, 1});
    table.resize(280, 300);
    EXPECT_TRUE(QTest::qWaitFor([&table] { return table.isColumnHidden(0); }));
    EXPECT_FALSE(table.isColumnHidden(1));
    table.resize(900, 300);
    EXPECT_TRUE(QTest::qWaitFor([&] { return table.columnWidth(0) == narrow; }));
}
