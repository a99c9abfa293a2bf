#include "tests/walkthrough/DeskRun.h"

#include "app/language/Languages.h"
#include "platform/AppPath.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QScreen>
#include <QSqlQuery>
#include <QSqlRecord>
#include <cstdio>

using namespace Qt::StringLiterals;

void Expect(bool condition, const QString& what)
{
    if (!condition)
        throw std::runtime_error(what.toStdString());
}

void Print(const QString& line)
{
    std::printf("%s\n", qPrintable(line));
}

QList<QStringList> Rows(QStringView file, const QString& sql)
{
    const QString name = u"rows"_s;
    QList<QStringList> rows;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
        database.setDatabaseName(StationPath(file));
        Expect(database.open(), u"cannot open "_s + file);
        QSqlQuery query(database);
        Expect(query.exec(sql), u"cannot read "_s + sql);
        while (query.next()) {
            QStringList& row = rows.emplace_back();
            for (int i = 0; i < query.record().count(); ++i)
                row << query.value(i).toString();
        }
    }
    QSqlDatabase::removeDatabase(name);
    return rows;
}

DeskRun::DeskRun(const QString& screenshots)
    : m_screenshots(screenshots)
    , m_station(std::make_unique<Station>())
    , m_window(std::make_unique<Form_Initial>(*m_station))
{
    Expect(m_window->Form_Load(), u"the desk does not start"_s);
    m_window->resize(QGuiApplication::primaryScreen()->availableSize().boundedTo(QSize(1280, 800)));
    m_window->show();
}

void DeskRun::screenshot(const QString& name)
{
    if (m_screenshots.isEmpty())
        return;
    QCoreApplication::processEvents();
    QDir().mkpath(m_screenshots);
    QPixmap picture = m_window->grab();
    if (QWidget* modal = QApplication::activeModalWidget()) {
        QPixmap dialog = modal->grab();
        QPainter painter(&picture);
        painter.drawPixmap(m_window->mapFromGlobal(modal->mapToGlobal(QPoint(0, 0))), dialog);
    }
    picture.save(m_screenshots + u'/' + name + u".png"_s);
}

void DeskRun::leave()
{
    const auto box = [](int number) { return [number] { return Driver::boxText() == GetLangString(number); }; };
    driver.add(
        u"exit"_s, [] { return Driver::usable(u"lbMenu_12"_s); }, [] { Driver::click(u"lbMenu_12"_s); });
    driver.add(u"exit question"_s, box(509), [] { Driver::answerBox(u"btnYes"_s); });
    driver.add(u"viewer question"_s, box(508), [] { Driver::answerBox(u"btnNo"_s); });
    driver.add(
        u"unloaded"_s, [this] { return m_window->unloaded(); }, [] {});
}
