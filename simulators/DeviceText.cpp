#include "simulators/DeviceText.h"

using namespace Qt::StringLiterals;

namespace simulators {

QString escaped(const QString& text)
{
    static const QString kPlain = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789@*_+-./"_s;
    QString out;
    for (const QChar c : text) {
        if (kPlain.contains(c))
            out += c;
        else if (c.unicode() < 256)
            out += u"%%1"_s.arg(QString::number(c.unicode(), 16).toUpper().rightJustified(2, u'0'));
        else
            out += u"%u%1"_s.arg(QString::number(c.unicode(), 16).toUpper().rightJustified(4, u'0'));
    }
    return out;
}

QString unescaped(const QByteArray& text)
{
    QString out;
    QByteArray plain;
    const auto flush = [&] {
        out += QString::fromUtf8(plain);
        plain.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == '%') {
            const bool wide = i + 1 < text.size() && (text.at(i + 1) == 'u' || text.at(i + 1) == 'U');
            const qsizetype from = i + (wide ? 2 : 1);
            const qsizetype length = wide ? 4 : 2;
            bool ok = from + length <= text.size();
            const uint code = ok ? text.mid(from, length).toUInt(&ok, 16) : 0;
            if (ok) {
                flush();
                out += QChar(static_cast<char16_t>(code));
                i = from + length - 1;
                continue;
            }
        }
        plain += text.at(i);
    }
    flush();
    return out;
}

Query::Query(const QByteArray& text)
{
    for (const QByteArray& part : text.split('&')) {
        if (part.isEmpty())
            continue;
        const qsizetype equals = part.indexOf('=');
        m_items.append({equals < 0 ? part : part.left(equals), equals < 0 ? QByteArray() : part.mid(equals + 1)});
    }
}

const QueryItem* Query::find(const char* key) const
{
    for (const QueryItem& item : m_items)
        if (item.key == key)
            return &item;
    return nullptr;
}

QString Query::value(const char* key) const
{
    const QueryItem* item = find(key);
    return item ? item->value() : QString();
}

int Query::number(const char* key, int otherwise) const
{
    bool ok = false;
    const int n = value(key).toInt(&ok);
    return ok ? n : otherwise;
}

int channelOfKey(const QByteArray& key, const QByteArray& prefix, QByteArray* rest)
{
    if (!key.startsWith(prefix))
        return 0;
    const qsizetype dot = key.indexOf('.', prefix.size());
    bool ok = false;
    const int n = key.mid(prefix.size(), dot < 0 ? -1 : dot - prefix.size()).toInt(&ok);
    if (rest)
        *rest = dot < 0 ? QByteArray() : key.mid(dot + 1);
    return ok && n > 0 ? n : 0;
}

} // namespace simulators
