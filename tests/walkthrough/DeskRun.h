#pragma once

#include "app/Station.h"
#include "app/ui/Form_Initial.h"
#include "tests/walkthrough/Driver.h"

#include <QStringList>

// Throws std::runtime_error with the text when the condition does not hold.
void Expect(bool condition, const QString& what);
void Print(const QString& line);

// Rows of a statement over one of the station's database files (see store/Databases.h), each cell as text.
QList<QStringList> Rows(QStringView file, const QString& sql);

// One run of the desk, from start to the end of its close sequence. Pictures go to `screenshots` unless that is empty.
class DeskRun
{
public:
    explicit DeskRun(const QString& screenshots);
    Station& station() { return *m_station; }
    void screenshot(const QString& name);
    // Last steps of the driver: Exit, its questions, and the window gone.
    void leave();

    Driver driver;

private:
    QString m_screenshots;
    std::unique_ptr<Station> m_station;
    std::unique_ptr<Form_Initial> m_window;
};

// The walks. Each works in the present station folder and throws what went wrong.

// One recorder is typed in, its rows are compared with it and printed, and a second start must find it again.
void WalkOneRecorder(const QString& screenshots);
// Sixteen recorders of mixed families: searched, added as far as the channels go, a camera of each family tuned, some
// removed, the places filled again; rows, devices and audit lines are compared after each step and after a restart.
void WalkWholeSite(const QString& screenshots);
