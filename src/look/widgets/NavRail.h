#pragma once

#include <QAbstractButton>
#include <QByteArray>
#include <QList>

class QButtonGroup;
class QVBoxLayout;

// One entry of the navigation rail: icon, label and, where a page holds changes not yet applied, a dot. The dot's
// meaning is also in the entry's accessible description and tool tip.
class NavEntry : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(bool dirty READ isDirty)
public:
    NavEntry(QLatin1StringView icon, const QString& label, QWidget* parent = nullptr);

    bool isDirty() const { return m_dirty; }
    // `meaning` is what the dot says in words.
    void setDirty(bool dirty, const QString& meaning = {});

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QByteArray m_icon;
    bool m_dirty = false;
};

// The desk's navigation at the leading edge: brand block on top, one checkable entry a page, others at the bottom.
// Up, Down, Home and End move between the entries on show; Return and Space press one. Object names are the caller's.
class NavRail : public QWidget
{
    Q_OBJECT
public:
    explicit NavRail(QWidget* parent = nullptr);

    // Name of the program and, below it, an optional second line in small writing.
    void setBrand(const QString& name, const QString& caption = {});
    // Appends an entry to the exclusive set; the first one added is checked. The rail owns it.
    NavEntry* addEntry(QLatin1StringView icon, const QString& label);
    // Appends an entry at the bottom that is only pressed, never checked.
    NavEntry* addBottomEntry(QLatin1StringView icon, const QString& label);
    // Pages in order, index from 0; the bottom entries follow.
    NavEntry* entry(int index) const { return m_entries.value(index); }
    int count() const { return static_cast<int>(m_entries.size()); }
    int currentIndex() const;
    void setCurrentIndex(int index);

    QSize sizeHint() const override;

signals:
    // An entry was pressed, by pointer or keyboard; index from 0 in the order of adding.
    void entryClicked(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    NavEntry* add(NavEntry* entry, QVBoxLayout* layout);
    void focusNeighbour(NavEntry* from, int step);

    class Brand;
    Brand* m_brand;
    QVBoxLayout* m_pages;
    QVBoxLayout* m_bottom;
    QButtonGroup* m_group;
    QList<NavEntry*> m_entries;
};
