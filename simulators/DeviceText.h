#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// The text forms that the devices speak: escaped values, query strings and value lines.
namespace simulators {

// Letters, digits and "@*_+-./" stay, code points up to 255 become %XX, the others %uXXXX (one per UTF-16 unit).
QString escaped(const QString& text);

// The reverse. Bytes above 127 that were not escaped are read as UTF-8; a "+" is a plus; a broken escape stays as it
// is.
QString unescaped(const QByteArray& text);

struct QueryItem
{
    QByteArray key;
    QByteArray raw; // as it came, still escaped
    QString value() const { return unescaped(raw); }
};

// The parts of a query in their order; empty parts ("&&", a trailing "&") give no item.
class Query
{
public:
    explicit Query(const QByteArray& text);
    const QList<QueryItem>& items() const { return m_items; }
    bool has(const char* key) const { return find(key) != nullptr; }
    QString value(const char* key) const; // first of that name, empty without one
    int number(const char* key, int otherwise = 0) const;

private:
    const QueryItem* find(const char* key) const;
    QList<QueryItem> m_items;
};

// "<prefix><n>.<rest>" or "<prefix><n>": n, or 0 when the key is of another shape. `rest` keeps what follows the dot.
int channelOfKey(const QByteArray& key, const QByteArray& prefix, QByteArray* rest = nullptr);

} // namespace simulators
