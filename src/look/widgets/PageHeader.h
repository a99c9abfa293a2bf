#pragma once

#include <QWidget>

class ElidedLabel;
class Pill;
class QHBoxLayout;
class QLabel;
class QToolButton;

// The bar above a page: title, subtitle and, at the trailing edge, user, clock and the switch between light and dark.
class PageHeader : public QWidget
{
    Q_OBJECT
public:
    explicit PageHeader(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    void setSubtitle(const QString& subtitle);
    // Empty texts hide their pill.
    void setUser(const QString& user);
    void setClock(const QString& time);
    // The words of the theme switch (tool tip and accessible name).
    void setThemeToggleText(const QString& text);
    // Puts a control between the subtitle and the pills.
    void addTrailing(QWidget* widget);

    // The parts, for object names and texts that change with the language.
    QLabel* titleLabel() const;
    QLabel* subtitleLabel() const;
    Pill* userPill() const { return m_user; }
    Pill* clockPill() const { return m_clock; }
    QToolButton* themeToggle() const { return m_toggle; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ElidedLabel* m_title;
    ElidedLabel* m_subtitle;
    QHBoxLayout* m_trailing;
    Pill* m_user;
    Pill* m_clock;
    QToolButton* m_toggle;
};
