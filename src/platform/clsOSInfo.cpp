#include "platform/clsOSInfo.h"

#include "platform/AppPath.h"

#include <QHash>
#include <QLocale>
#include <QNetworkInterface>
#include <QStorageInfo>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace {

std::function<int()>& ScreenCounter()
{
    static std::function<int()> counter;
    return counter;
}

} // namespace

QString clsOSInfo::OSName() const
{
    return QSysInfo::prettyProductName();
}

QString clsOSInfo::ComputerName() const
{
    return QSysInfo::machineHostName();
}

qint64 clsOSInfo::DiskSizeGB() const
{
    return QStorageInfo(AppPath()).bytesTotal() >> 30;
}

qint16 clsOSInfo::GetScreenCount() const
{
    return ScreenCounter() ? static_cast<qint16>(qMax(1, ScreenCounter()())) : qint16(1);
}

void clsOSInfo::setScreenCounter(std::function<int()> counter)
{
    ScreenCounter() = std::move(counter);
}

QString LocalIPAddress()
{
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : interfaces) {
        const auto flags = interface.flags();
        if (!flags.testFlag(QNetworkInterface::IsUp) || flags.testFlag(QNetworkInterface::IsLoopBack))
            continue;
        const QList<QNetworkAddressEntry> entries = interface.addressEntries();
        for (const QNetworkAddressEntry& entry : entries) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
                return entry.ip().toString();
        }
    }
    return u"127.0.0.1"_s;
}

int SystemDefaultLCID()
{
    static const QHash<QString, int> ids{
        {u"en_US"_s, 0x409}, {u"zh_TW"_s, 0x404}, {u"zh_CN"_s, 0x804}, {u"ja_JP"_s, 0x411}, {u"es_ES"_s, 0xc0a},
        {u"it_IT"_s, 0x410}, {u"de_DE"_s, 0x407}, {u"da_DK"_s, 0x406}, {u"fr_FR"_s, 0x40c}, {u"pl_PL"_s, 0x415},
        {u"cs_CZ"_s, 0x405}, {u"ru_RU"_s, 0x419}, {u"ru_MD"_s, 0x819}, {u"tr_TR"_s, 0x41f}, {u"he_IL"_s, 0x40d}};
    return ids.value(QLocale::system().name(), 0);
}
