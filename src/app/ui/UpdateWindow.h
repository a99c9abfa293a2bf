#pragma once

#include "store/UpdateDatabase.h"

#include <QElapsedTimer>
#include <memory>

class ProgressWindow;

// The progress window of a database update. It paints at most every 40 ms, so that showing costs next to nothing.
class UpdateWindow final : public UpdateWatcher
{
public:
    UpdateWindow();
    ~UpdateWindow() override;

    void begin() override;
    void row(const QString& table, qint64 row, qint64 rows) override;
    void waiting() override;
    void end() override;

private:
    std::unique_ptr<ProgressWindow> m_window;
    QString m_text;
    QElapsedTimer m_painted;
};
