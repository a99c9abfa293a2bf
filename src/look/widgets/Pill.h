#pragma once

#include <QByteArray>
#include <QWidget>

// A short fact in a rounded border, such as the user or the time: optional line icon, text, optional figures face.
class Pill : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
public:
    explicit Pill(QWidget* parent = nullptr);
    explicit Pill(QLatin1StringView icon, QWidget* parent = nullptr);

    QString text() const { return m_text; }
    // An empty text hides the pill.
    void setText(const QString& text);
    void setIcon(QLatin1StringView icon);
    // Digits of one width, so that a running clock does not tremble.
    void setMonospace(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    QByteArray m_icon;
    bool m_monospace = false;
};
