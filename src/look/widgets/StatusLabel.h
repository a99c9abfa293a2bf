#pragma once

#include "look/tables/StatusRoles.h"

#include <QWidget>

// A state outside of tables: dot and words, in as many lines as they need; a word that is too long is cut with an
// ellipsis.
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
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Status m_status = Status::None;
    QString m_words;
};
