#include "tools/gallery/GalleryPages.h"

#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/tables/StatusRoles.h"
#include "look/tables/Tables.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/Card.h"
#include "look/widgets/DeskMessageBox.h"
#include "look/widgets/EmptyState.h"
#include "look/widgets/Fields.h"
#include "look/widgets/PasswordField.h"
#include "look/widgets/ProgressWindow.h"
#include "look/widgets/StatusLabel.h"
#include "look/widgets/StepStrip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString Either(bool german, const char16_t* english, const char16_t* long_)
{
    return QString::fromUtf16(german ? long_ : english);
}

QVBoxLayout* PageColumn(QWidget* page)
{
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

QWidget* Body(QVBoxLayout* column)
{
    auto* body = new QWidget;
    column->addWidget(body, 1);
    return body;
}

QStandardItem* Cell(const QString& text, Qt::Alignment alignment = Qt::AlignLeading | Qt::AlignVCenter)
{
    auto* item = new QStandardItem(text);
    item->setEditable(false);
    item->setTextAlignment(alignment);
    return item;
}

QStandardItem* StatusCell(Status status, const QString& words, int progress = -1)
{
    QStandardItem* item = Cell(words);
    item->setData(static_cast<int>(status), kStatusRole);
    if (progress >= 0)
        item->setData(progress, kProgressRole);
    return item;
}

QLabel* Said(const QString& text, QLatin1StringView role)
{
    auto* label = new QLabel(text);
    SetRole(label, role);
    return label;
}

} // namespace

QWidget* MakeTablePage(bool german)
{
    auto* page = new QWidget;
    QVBoxLayout* column = PageColumn(page);
    auto* content = new QVBoxLayout(Body(column));
    content->setContentsMargins(24, 20, 24, 24);
    content->setSpacing(16);
    auto* tools = new QHBoxLayout;
    auto* search = new SearchField;
    search->setObjectName(u"search"_s);
    search->setPlaceholderText(Either(german, u"Filter name, address, model…", u"Nach Name, Adresse, Modell filtern…"));
    search->setFixedWidth(280);
    tools->addWidget(search);
    tools->addStretch();
    tools->addWidget(
        Said(Either(german, u"5 of 16 recorders · 132 of 255 channels", u"5 von 16 Rekordern · 132 von 255 Kanälen"),
             "muted"_L1));
    tools->addSpacing(8);
    tools->addWidget(new QPushButton(Icon("user"_L1), Either(german, u"Accounts…", u"Benutzerkonten…")));
    auto* add = new QPushButton(Icon("add"_L1), Either(german, u"Add", u"Hinzufügen"));
    SetKind(add, "primary"_L1);
    tools->addWidget(add);
    content->addLayout(tools);

    auto* model = new QStandardItemModel(page);
    model->setHorizontalHeaderLabels({u"NVR"_s, Either(german, u"Name", u"Bezeichnung"), u"IP:Port"_s,
                                      Either(german, u"Brand", u"Hersteller"), Either(german, u"Model", u"Modell"),
                                      Either(german, u"Valid Ch", u"Gültige Kanäle"),
                                      Either(german, u"State", u"Zustand")});
    const auto right = Qt::AlignRight | Qt::AlignVCenter;
    model->horizontalHeaderItem(5)->setTextAlignment(right);
    const struct
    {
        const char16_t* name;
        const char16_t* address;
        const char16_t* model;
        int channels;
        Status status;
        const char16_t* words;
        int progress;
    } rows[] = {
        {u"Warehouse north", u"192.168.10.21:80", u"PRO-3216", 16, Status::Ok, u"Connected", -1},
        {u"Gatehouse", u"192.168.10.22:80", u"TXR-632", 32, Status::Ok, u"Connected", -1},
        {u"Parking deck", u"192.168.10.40:8080", u"SVR-8", 8, Status::Warning, u"Re-detect: 2 channels changed", -1},
        {u"Office tower", u"nvr-tower.lan:80", u"TXR-632", 64, Status::Bad, u"No response", -1},
        {u"Cold store", u"192.168.10.51:80", u"PRO-3216", 12, Status::Busy, u"Get Channel Info…", 62},
        {u"Annex", u"192.168.10.90:80", u"PRO-3216", 0, Status::None, u"Waiting", -1}};
    int number = 0;
    for (const auto& row : rows)
        model->appendRow({Cell(QString::number(++number)), Cell(QString::fromUtf16(row.name)),
                          Cell(QString::fromUtf16(row.address)), Cell(u"NoBrand"_s),
                          Cell(QString::fromUtf16(row.model)), Cell(QString::number(row.channels), right),
                          StatusCell(row.status, QString::fromUtf16(row.words), row.progress)});
    auto* table = new QTableView;
    table->setObjectName(u"table"_s);
    table->setModel(model);
    StyleTable(table);
    MonospaceColumn(table, 2);
    StatusColumn(table, 6);
    const int widths[] = {64, 120, 180, 100, 100, german ? 130 : 90, 250};
    for (int i = 0; i < 7; ++i)
        table->setColumnWidth(i, widths[i]);
    table->horizontalHeader()->setStretchLastSection(false);
    table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    table->horizontalHeader()->setSortIndicator(1, Qt::AscendingOrder);
    table->horizontalHeader()->setSortIndicatorShown(true);
    table->setFixedHeight(TableRowHeight() * 7 + 2);
    table->setCurrentIndex(model->index(2, 1));
    content->addWidget(table);
    content->addStretch();

    auto* bar = new ActionBar;
    bar->setNote(Either(german, u"2 changes not applied", u"2 Änderungen wurden noch nicht übernommen"));
    bar->addButton(Either(german, u"Cancel", u"Abbrechen"));
    bar->addButton(Either(german, u"Apply", u"Übernehmen"))->setEnabled(true);
    column->addWidget(bar);
    return page;
}

QWidget* MakeRightsPage(bool german)
{
    auto* page = new QWidget;
    QVBoxLayout* column = PageColumn(page);
    auto* content = new QVBoxLayout(Body(column));
    content->setContentsMargins(24, 20, 24, 24);
    content->setSpacing(16);
    auto* tools = new QHBoxLayout;
    auto* group = new QComboBox;
    group->addItems({u"Administrator"_s, u"Power User"_s, u"User"_s, u"Operator 1"_s});
    group->setCurrentIndex(3);
    group->setFixedWidth(240);
    tools->addWidget(group);
    auto* search = new SearchField;
    search->setFixedWidth(240);
    search->setPlaceholderText(Either(german, u"Filter channels…", u"Kanäle filtern…"));
    tools->addWidget(search);
    tools->addStretch();
    tools->addWidget(Said(
        Either(german, u"Live governs PTZ, Playback and Audio", u"Live bestimmt PTZ, Wiedergabe und Ton"), "muted"_L1));
    content->addLayout(tools);
    auto* model = new QStandardItemModel(page);
    model->setHorizontalHeaderLabels({u"CH"_s, Either(german, u"Channel Name", u"Kanalbezeichnung"), u"Live"_s,
                                      u"PTZ"_s, Either(german, u"Playback", u"Wiedergabe"),
                                      Either(german, u"Audio", u"Ton"),
                                      Either(german, u"Who reaches it", u"Wer ihn erreicht")});
    const QStringList names{u"Gate in"_s,    u"Gate out"_s,   u"Ramp"_s,        u"Lobby"_s,  u"Lift A"_s, u"Lift B"_s,
                            u"Corridor 1"_s, u"Corridor 2"_s, u"Server room"_s, u"Stairs"_s, u"Roof"_s,   u"Yard"_s,
                            u"Dock 1"_s,     u"Dock 2"_s,     u"Dock 3"_s,      u"Canteen"_s};
    for (int i = 0; i < names.size(); ++i) {
        QList<QStandardItem*> row{Cell(QString::number(i + 1)), Cell(names[i])};
        for (int right = 0; right < 4; ++right) {
            QStandardItem* box = Cell({});
            const bool live = i % 3 != 0;
            box->setCheckable(true);
            box->setCheckState(live && (i * 7 + right * 3) % 4 != 1 ? Qt::Checked : Qt::Unchecked);
            box->setEnabled(right == 0 || live);
            row.append(box);
        }
        row.append(Cell(i % 3 ? u"Administrator, Power User, Operator 1"_s : u"Administrator, Power User"_s));
        row.last()->setForeground(Token("muted"_L1));
        model->appendRow(row);
    }
    auto* table = new QTableView;
    table->setObjectName(u"table"_s);
    table->setModel(model);
    StyleTable(table);
    const int widths[] = {64, 200, 90, 90, german ? 120 : 100, 90};
    for (int i = 0; i < 6; ++i)
        table->setColumnWidth(i, widths[i]);
    table->setCurrentIndex(model->index(4, 1));
    content->addWidget(table, 1);
    auto* bar = new ActionBar;
    bar->setNote(Either(german, u"2 changes not applied", u"2 Änderungen wurden noch nicht übernommen"));
    bar->addButton(Either(german, u"Cancel", u"Abbrechen"));
    bar->addButton(Either(german, u"Apply", u"Übernehmen"), "primary"_L1);
    column->addWidget(bar);
    return page;
}

QWidget* MakeFormPage(bool german)
{
    auto* page = new QWidget;
    QVBoxLayout* column = PageColumn(page);
    auto* body = new QWidget;
    auto* scroll = new QScrollArea;
    scroll->setWidget(body);
    scroll->setWidgetResizable(true);
    column->addWidget(scroll, 1);
    auto* grid = new QGridLayout(body);
    grid->setContentsMargins(24, 20, 24, 24);
    grid->setSpacing(16);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);

    auto* language = new Card(Either(german, u"Language", u"Sprache der Bedienoberfläche"));
    auto* picker = new QComboBox;
    picker->setObjectName(u"picker"_s);
    const QStringList languages{u"English"_s,  u"繁體中文"_s, u"简体中文"_s, u"日本語"_s,   u"Español"_s,
                                u"Italiano"_s, u"Deutsch"_s,  u"Dansk"_s,    u"Français"_s, u"Polski"_s,
                                u"Čeština"_s,  u"Русский"_s,  u"Türkçe"_s,   u"עברית"_s};
    picker->setIconSize({24, 16});
    for (int i = 0; i < languages.size(); ++i)
        picker->addItem(Flag(i + 1), languages[i]);
    picker->setCurrentIndex(german ? 6 : 0);
    language->content()->addWidget(picker);
    language->content()->addWidget(Said(Either(german, u"Applies to the desk and to every user of this station.",
                                               u"Gilt für das Programm und für alle Benutzer dieser Station."),
                                        "hint"_L1));
    language->content()->addStretch();
    grid->addWidget(language, 0, 0);

    auto* start = new Card(Either(german, u"Start", u"Anlaufverhalten"));
    auto* autostart =
        new QCheckBox(Either(german, u"Start with the desktop session", u"Mit der Arbeitssitzung starten"));
    autostart->setChecked(true);
    auto* login = new QCheckBox(Either(german, u"Ask for the login at start", u"Beim Start nach der Anmeldung fragen"));
    auto* locked = new QCheckBox(
        Either(german, u"Only the administrator may change this", u"Nur der Administrator darf dies ändern"));
    locked->setEnabled(false);
    locked->setChecked(true);
    for (QCheckBox* box : {autostart, login, locked})
        start->content()->addWidget(box);
    grid->addWidget(start, 0, 1);

    auto* defaults = new Card(Either(german, u"Recorder defaults", u"Voreinstellungen für Rekorder"));
    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(8);
    form->setLabelAlignment(Qt::AlignLeading);
    auto* http = new QSpinBox;
    http->setRange(1, 65535);
    http->setValue(80);
    auto* rtsp = new QSpinBox;
    rtsp->setRange(1, 65535);
    rtsp->setValue(554);
    auto* name = new QLineEdit(u"admin"_s);
    auto* password = new PasswordField;
    password->setText(u"secret12"_s);
    password->setEyeTexts(u"Show"_s, u"Hide"_s, u"Stored"_s);
    auto* host = new QLineEdit(u"192.168.10.999"_s);
    host->setFont(MonoFont());
    SetFaulty(host, true);
    auto* faulty = new QVBoxLayout;
    faulty->setSpacing(4);
    faulty->addWidget(host);
    faulty->addWidget(Said(
        Either(german, u"Not an address: 999 is above 255.", u"Keine Adresse: 999 ist größer als 255."), "bad"_L1));
    form->addRow(Either(german, u"HTTP port", u"HTTP-Anschlussnummer"), http);
    form->addRow(Either(german, u"RTSP port", u"RTSP-Anschlussnummer"), rtsp);
    form->addRow(Either(german, u"User name", u"Benutzername"), name);
    form->addRow(Either(german, u"Password", u"Kennwort"), password);
    form->addRow(Either(german, u"Mail server", u"Postausgangsserver"), faulty);
    defaults->content()->addLayout(form);
    grid->addWidget(defaults, 1, 0, 2, 1);

    auto* paths = new Card(Either(german, u"Snapshots", u"Momentaufnahmen"));
    auto* row = new QHBoxLayout;
    auto* path = new QLineEdit(u"/srv/station/Images"_s);
    path->setFont(MonoFont());
    row->addWidget(path, 1);
    row->addWidget(new QPushButton(Icon("folder"_L1), Either(german, u"Browse…", u"Durchsuchen…")));
    paths->content()->addLayout(row);
    auto* jpeg = new QRadioButton(u"JPEG"_s);
    jpeg->setChecked(true);
    auto* bitmap = new QRadioButton(Either(german, u"Bitmap", u"Bitmap (unkomprimiert)"));
    auto* other = new QRadioButton(Either(german, u"Ask each time", u"Jedes Mal fragen"));
    other->setEnabled(false);
    auto* radios = new QHBoxLayout;
    radios->setSpacing(16);
    for (QRadioButton* each : {jpeg, bitmap, other})
        radios->addWidget(each);
    radios->addStretch();
    paths->content()->addLayout(radios);
    grid->addWidget(paths, 1, 1);

    auto* state = new Card(Either(german, u"Station", u"Zustand der Station"));
    auto* more = new QToolButton;
    more->setIcon(Icon("refresh"_L1));
    more->setAutoRaise(true);
    state->setTitleControl(more);
    const std::pair<Status, const char16_t*> states[] = {{Status::Ok, u"Database up to date"},
                                                         {Status::Warning, u"Live viewer must be re-opened"},
                                                         {Status::Bad, u"Mail server does not answer"},
                                                         {Status::None, u"No upload server set"}};
    for (const auto& [status, words] : states) {
        auto* label = new StatusLabel;
        label->setStatus(status, QString::fromUtf16(words));
        state->content()->addWidget(label);
    }
    grid->addWidget(state, 2, 1);
    grid->setRowStretch(3, 1);

    auto* bar = new ActionBar;
    bar->setNote(Either(german, u"All changes applied", u"Alle Änderungen wurden übernommen"));
    bar->addButton(Either(german, u"Cancel", u"Abbrechen"))->setEnabled(false);
    bar->addButton(Either(german, u"Apply", u"Übernehmen"), "primary"_L1)->setEnabled(false);
    column->addWidget(bar);
    return page;
}

QWidget* MakeControlsPage(bool german)
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(24, 20, 24, 24);
    grid->setSpacing(16);

    auto* buttons = new Card(Either(german, u"Buttons", u"Schaltflächen"));
    for (const bool enabled : {true, false}) {
        auto* row = new QHBoxLayout;
        for (const auto kind : {"primary"_L1, ""_L1, "danger"_L1, "quiet"_L1}) {
            auto* button = new QPushButton(kind == "danger"_L1 ? Icon("delete"_L1) : QIcon(),
                                           kind.isEmpty() ? Either(german, u"Normal", u"Gewöhnlich")
                                                          : QString(kind.mid(0, 1)).toUpper() + kind.mid(1));
            SetKind(button, kind);
            button->setEnabled(enabled);
            button->setObjectName(enabled ? u"button_"_s + kind : QString());
            row->addWidget(button);
        }
        row->addStretch();
        buttons->content()->addLayout(row);
    }
    auto* toolRow = new QHBoxLayout;
    toolRow->setSpacing(4);
    for (const auto name : {"edit"_L1, "delete"_L1, "refresh"_L1, "export"_L1, "filter"_L1}) {
        auto* tool = new QToolButton;
        tool->setIcon(Icon(name));
        tool->setAutoRaise(true);
        tool->setCheckable(name == "filter"_L1);
        tool->setChecked(name == "filter"_L1);
        tool->setEnabled(name != "export"_L1);
        toolRow->addWidget(tool);
    }
    toolRow->addStretch();
    buttons->content()->addLayout(toolRow);
    grid->addWidget(buttons, 0, 0);

    auto* fields = new Card(Either(german, u"Fields", u"Eingabefelder"));
    auto* disabled = new QLineEdit(Either(german, u"Disabled text stays readable", u"Gesperrter Text bleibt lesbar"));
    disabled->setEnabled(false);
    auto* placeholder = new QLineEdit;
    placeholder->setPlaceholderText(Either(german, u"Placeholder", u"Platzhalter"));
    placeholder->setClearButtonEnabled(true);
    auto* time = new QDateTimeEdit(QDateTime(QDate(2026, 11, 24), QTime(11, 20, 5)));
    SetTimeFormat(time, u"yyyy/MM/dd hh:mm:ss"_s);
    auto* combo = new QComboBox;
    combo->addItems({u"Disabled combo"_s});
    combo->setEnabled(false);
    auto* editable = new QComboBox;
    editable->setEditable(true);
    editable->addItems({u"Editable combo"_s});
    auto* fieldGrid = new QGridLayout;
    fieldGrid->addWidget(placeholder, 0, 0);
    fieldGrid->addWidget(disabled, 0, 1);
    fieldGrid->addWidget(time, 1, 0);
    fieldGrid->addWidget(combo, 1, 1);
    fieldGrid->addWidget(editable, 2, 0);
    auto* spin = new QDoubleSpinBox;
    spin->setSuffix(u" s"_s);
    spin->setEnabled(false);
    fieldGrid->addWidget(spin, 2, 1);
    fields->content()->addLayout(fieldGrid);
    grid->addWidget(fields, 0, 1);

    auto* work = new Card(Either(german, u"Progress and sliders", u"Fortschritt und Schieberegler"));
    auto* done = new QProgressBar;
    done->setValue(62);
    auto* busy = new QProgressBar;
    busy->setRange(0, 0);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    slider->setObjectName(u"slider"_s);
    auto* stuck = new QSlider(Qt::Horizontal);
    stuck->setValue(70);
    stuck->setEnabled(false);
    for (QWidget* each : std::initializer_list<QWidget*>{done, busy, slider, stuck})
        work->content()->addWidget(each);
    work->content()->addStretch();
    grid->addWidget(work, 1, 0);

    auto* tabs = new QTabWidget;
    tabs->setObjectName(u"tabs"_s);
    auto* tree = new QTreeWidget;
    tree->setHeaderHidden(true);
    auto* root = new QTreeWidgetItem(tree, {u"MainMap"_s});
    root->setIcon(0, Icon("emap"_L1));
    for (const char16_t* each : {u"Ground floor", u"First floor", u"Car park"}) {
        auto* floor = new QTreeWidgetItem(root, {QString::fromUtf16(each)});
        floor->setIcon(0, Icon("picture"_L1));
        auto* camera = new QTreeWidgetItem(floor, {u"Camera 1"_s});
        camera->setIcon(0, Icon("camera"_L1));
    }
    tree->expandItem(root);
    tree->setCurrentItem(root->child(1));
    StyleTree(tree);
    tabs->addTab(tree, Either(german, u"Position", u"Anordnung auf der Karte"));
    auto* list = new QListWidget;
    list->addItems({u"Motion"_s, u"Threat"_s, u"Object loss"_s});
    tabs->addTab(list, Either(german, u"Events", u"Ereignisse"));
    auto* text = new QTextEdit(u"Notes"_s);
    tabs->addTab(text, Either(german, u"Notes", u"Anmerkungen"));
    grid->addWidget(tabs, 1, 1);
    grid->setRowStretch(1, 1);
    return page;
}

QWidget* MakeEmptyPage(bool german)
{
    auto* page = new EmptyState("empty-recorder"_L1);
    page->setHeadline(Either(german, u"No recorder yet", u"Noch kein Rekorder eingetragen"));
    page->setHint(Either(german,
                         u"Search the network or type an address: the desk detects model and channels by itself.",
                         u"Durchsuchen Sie das Netz oder geben Sie eine Adresse ein: Modell und Kanäle werden "
                         u"selbsttätig erkannt."));
    page->setButton(Either(german, u"Add the first recorder", u"Ersten Rekorder hinzufügen"));
    return page;
}

QWidget* MakePicturesPage()
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(24, 20, 24, 24);
    column->setSpacing(16);
    auto* icons = new Card(u"Icons"_s);
    auto* grid = new QGridLayout;
    grid->setSpacing(10);
    int place = 0;
    for (const auto name :
         {"system"_L1,     "nvr"_L1,      "intelligent"_L1, "users"_L1,  "event"_L1,    "server"_L1,   "emap"_L1,
          "screens"_L1,    "startup"_L1,  "videowall"_L1,   "svd"_L1,    "tooling"_L1,  "exit"_L1,     "add"_L1,
          "edit"_L1,       "delete"_L1,   "search"_L1,      "filter"_L1, "apply"_L1,    "cancel"_L1,   "export"_L1,
          "import"_L1,     "refresh"_L1,  "sun"_L1,         "moon"_L1,   "eye"_L1,      "eye-off"_L1,  "check"_L1,
          "check-grey"_L1, "warning"_L1,  "error"_L1,       "info"_L1,   "question"_L1, "ok"_L1,       "close"_L1,
          "back"_L1,       "next"_L1,     "user"_L1,        "group"_L1,  "clock"_L1,    "calendar"_L1, "camera"_L1,
          "folder"_L1,     "picture"_L1,  "lock"_L1,        "bell"_L1,   "sound"_L1,    "play"_L1,     "pause"_L1,
          "stop"_L1,       "link"_L1,     "pin"_L1,         "move"_L1,   "zoom-in"_L1,  "zoom-out"_L1, "grid"_L1,
          "log"_L1,        "upload"_L1,   "more"_L1,        "copy"_L1,   "up"_L1,       "down"_L1,     "first"_L1,
          "last"_L1,       "previous"_L1, "following"_L1,   "remove"_L1}) {
        for (const auto& [side, row] : {std::pair{17, 0}, std::pair{34, 1}}) {
            auto* label = new QLabel;
            label->setPixmap(IconPixmap(name, {side, side}, Token("text"_L1), page->devicePixelRatioF()));
            label->setToolTip(QString(name));
            grid->addWidget(label, place / 17 * 2 + row, place % 17, Qt::AlignCenter);
        }
        ++place;
    }
    icons->content()->addLayout(grid);
    column->addWidget(icons);
    auto* flags = new Card(u"Flags"_s);
    for (const int width : {24, 48}) {
        auto* row = new QHBoxLayout;
        for (int language = 1; language <= 14; ++language) {
            auto* label = new QLabel;
            label->setPixmap(Flag(language).pixmap({width, width * 2 / 3}));
            row->addWidget(label);
        }
        row->addStretch();
        flags->content()->addLayout(row);
    }
    column->addWidget(flags);
    auto* big = new QHBoxLayout;
    for (const auto name : {"empty-recorder"_L1, "empty-page"_L1, "empty-screens"_L1}) {
        auto* label = new QLabel;
        label->setPixmap(Illustration(name, 1));
        big->addWidget(label);
    }
    for (const int side : {64, 32, 16}) {
        auto* label = new QLabel;
        label->setPixmap(ProgramIcon().pixmap(side));
        big->addWidget(label);
    }
    column->addLayout(big);
    column->addStretch();
    return page;
}

namespace {

DialogFrame* MakeWizard(bool german, QWidget* parent)
{
    auto* dialog = new DialogFrame(parent);
    dialog->setWindowTitle(Either(german, u"Add New NVR", u"Neuen Rekorder hinzufügen"));
    dialog->steps()->setSteps({Either(german, u"Choose", u"Auswählen"), Either(german, u"Search", u"Durchsuchen"),
                               Either(german, u"Detect", u"Erkennen")});
    dialog->steps()->setCurrent(2);
    auto* model = new QStandardItemModel(dialog);
    model->setHorizontalHeaderLabels({Either(german, u"Device Name", u"Gerätename"), u"IP"_s, u"Port"_s,
                                      Either(german, u"Model", u"Modell"), Either(german, u"CHs", u"Kanäle"),
                                      Either(german, u"Status", u"Zustand")});
    const auto right = Qt::AlignRight | Qt::AlignVCenter;
    model->horizontalHeaderItem(4)->setTextAlignment(right);
    const auto add = [&](const char16_t* name, const char16_t* address, const char16_t* device, const QString& count,
                         QStandardItem* status) {
        model->appendRow({Cell(QString::fromUtf16(name)), Cell(QString::fromUtf16(address)), Cell(u"80"_s),
                          Cell(QString::fromUtf16(device)), Cell(count, right), status});
    };
    add(u"Dock 3", u"192.168.10.60", u"PRO-3216", u"16"_s, StatusCell(Status::Ok, u"Add Success!"_s));
    add(u"Dock 4", u"192.168.10.61", u"PRO-3216", {}, StatusCell(Status::Busy, u"Get Channel Info…"_s, 62));
    add(u"Roof", u"192.168.10.77", u"SVR-8", {}, StatusCell(Status::Bad, u"Incorrect User Account or Password !"_s));
    add(u"Annex", u"192.168.10.90", u"TXR-632", {}, StatusCell(Status::None, u"Waiting"_s));
    auto* table = new QTableView;
    table->setModel(model);
    StyleTable(table);
    MonospaceColumn(table, 1);
    StatusColumn(table, 5);
    const int widths[] = {120, 140, 64, 110, 80, 280};
    for (int i = 0; i < 6; ++i)
        table->setColumnWidth(i, widths[i]);
    table->setMinimumHeight(TableRowHeight() * 5 + 40);
    auto* column = new QVBoxLayout(dialog->content());
    column->addWidget(table);
    dialog->footer()->setNote(Either(german, u"2 of 4 done", u"2 von 4 erledigt"));
    dialog->footer()->addButton(Either(german, u"Stop", u"Anhalten"));
    dialog->footer()->addButton(Either(german, u"Finish", u"Fertigstellen"), "primary"_L1)->setEnabled(false);
    dialog->resize(860, dialog->sizeHint().height());
    return dialog;
}

} // namespace

DialogFrame* MakeDialog(int index, bool german, QWidget* parent)
{
    using Kind = DeskMessageBox::Kind;
    const QString title = Either(german, u"Information", u"Information");
    switch (index) {
    case 0:
        return MakeWizard(german, parent);
    case 1: {
        auto* box = new DeskMessageBox(Kind::Question,
                                       Either(german, u"Do you want to save the changes of this page?",
                                              u"Möchten Sie die Änderungen auf dieser Seite jetzt speichern?"),
                                       title, parent);
        box->setButtonTexts({}, Either(german, u"Yes", u"Ja"), Either(german, u"No", u"Nein"));
        return box;
    }
    case 2:
        return new DeskMessageBox(Kind::Information,
                                  Either(german, u"Please re-open the live viewer for the change to take effect.",
                                         u"Bitte öffnen Sie die Live-Ansicht erneut, damit die Änderung wirksam wird. "
                                         u"Bis dahin arbeitet sie mit den bisherigen Einstellungen weiter."),
                                  title, parent);
    case 3: {
        auto* box = new DeskMessageBox(Kind::Question, u"האם לשמור את השינויים?"_s, u"מידע"_s, parent);
        box->setButtonTexts({}, u"כן"_s, u"לא"_s);
        box->setRightToLeftText(true);
        return box;
    }
    case 4: {
        auto* window =
            new ProgressWindow(Either(german, u"Update Database ...", u"Datenbank wird aktualisiert …"), parent);
        window->setWindowTitle(u"Rigging Desk"_s);
        window->setMaximum(100);
        window->setValue(62);
        window->setCancelText(Either(german, u"Cancel", u"Abbrechen"));
        return window;
    }
    default:
        return nullptr;
    }
}
