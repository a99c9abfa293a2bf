#pragma once

#include "look/StatusRoles.h"

#include <QWidget>

// A state outside of tables: dot and words, cut with an ellipsis where the room ends.
class StatusLabel : public QWidget
{
    Q_OBJECT
public:
    explicit StatusLabel(QWidget* parent = nullptr);

    void setStatus(Status status, const QString& words);
    Status status() const { return m_status; }
    QString text() const { return m_words; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Status m_status = Status::None;
    QString m_words;
};
