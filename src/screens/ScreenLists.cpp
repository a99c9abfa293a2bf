#include "screens/ScreenLists.h"

#include "app/log/Module_Log.h"
#include "support/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::vector<qint16> ToNumbers(const QString& list, qint16 other, qsizetype limit, QLatin1String source)
{
    std::vector<qint16> numbers;
    if (list.isEmpty())
        return numbers;
    bool told = false;
    for (const QStringView entry : QStringView(list).tokenize(u',')) {
        if (static_cast<qsizetype>(numbers.size()) >= limit)
            break;
        numbers.push_back(other);
        TrappedOnce(told, source, [&] { numbers.back() = ToInt16(entry); });
    }
    return numbers;
}

QString ToList(const std::vector<qint16>& numbers)
{
    QStringList entries;
    for (const qint16 number : numbers)
        entries << QString::number(number);
    return entries.join(u',');
}

std::optional<qint16> NumberOf(QStringView entry)
{
    bool ok = false;
    const short number = entry.trimmed().toShort(&ok);
    return ok ? std::optional<qint16>(number) : std::nullopt;
}

std::vector<qint16> PanesOf(const QString& list, qsizetype count)
{
    std::vector<qint16> panes;
    for (const QStringView entry : QStringView(list).tokenize(u',')) {
        if (static_cast<qsizetype>(panes.size()) >= count)
            break;
        const qint16 number = NumberOf(entry).value_or(kEmptyPane);
        panes.push_back(number >= 0 && number < kChannelsOfStation ? number : kEmptyPane);
    }
    panes.resize(static_cast<std::size_t>(count), kEmptyPane);
    return panes;
}

QString EmptyPanes(qsizetype count)
{
    return QStringList(count, u"-1"_s).join(u',');
}

LiveChannels::LiveChannels(const RecorderSet& set)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        const SVRRecord& recorder = At(set.SVRWorkList, slot);
        recorders[static_cast<std::size_t>(slot)] = !recorder.sSVR_Name.isEmpty();
        for (int channel = 0; channel < kMaxChannel && !recorder.sSVR_IP.isEmpty(); ++channel)
            channels[static_cast<std::size_t>(PaneNumber(slot, channel))] =
                !At(recorder.channels, channel).sSub_CH_Name.isEmpty();
    }
}

bool LiveChannels::hasChannel(int slot, int channel) const
{
    return slot >= 0 && slot < kMaxSVR && channel >= 0 && channel < kMaxChannel &&
           channels[static_cast<std::size_t>(PaneNumber(slot, channel))];
}

bool LiveChannels::hasPane(int number) const
{
    return number >= 0 && number < kChannelsOfStation && channels[static_cast<std::size_t>(number)];
}

bool LiveChannels::hasRecorder(int slot) const
{
    return slot >= 0 && slot < kMaxSVR && recorders[static_cast<std::size_t>(slot)];
}

bool DropGonePanes(QString& list, const LiveChannels& live)
{
    const auto stays = [&](QStringView entry) {
        const std::optional<qint16> number = NumberOf(entry);
        return number && (*number == kEmptyPane || live.hasPane(*number));
    };
    if (list.isEmpty() || AllEntries(list, stays))
        return false;
    QString kept;
    kept.reserve(list.size());
    for (const QStringView entry : QStringView(list).tokenize(u',')) {
        kept += stays(entry) ? entry.trimmed() : QStringView(u"-1");
        kept += u',';
    }
    kept.chop(1);
    list = std::move(kept);
    return true;
}

bool ShowsNothing(const QString& panes)
{
    return !panes.isEmpty() && AllEntries(panes, [](QStringView entry) { return NumberOf(entry) == kEmptyPane; });
}

bool KeepEntries(QString& list, const KeepEntry& keep)
{
    if (list.isEmpty())
        return false;
    QStringList kept;
    for (const QStringView entry : QStringView(list).tokenize(u',')) {
        if (std::optional<QString> stays = keep(entry))
            kept << std::move(*stays);
    }
    const QString before = std::exchange(list, kept.join(u','));
    return list != before;
}

bool IsSequence(const QString& list)
{
    return list.contains(u',');
}

KeepEntry LiveChannelEntries(const LiveChannels& live)
{
    return [&live](QStringView entry) -> std::optional<QString> {
        const qsizetype mark = entry.indexOf(u'\\');
        const std::optional<qint16> recorder = NumberOf(entry.left(std::max<qsizetype>(mark, 0)));
        const std::optional<qint16> channel = NumberOf(entry.mid(mark + 1));
        if (!recorder || !channel || !live.hasChannel(*recorder - 1, *channel - 1))
            return std::nullopt;
        return entry.trimmed().toString();
    };
}

KeepEntry LiveRecorderEntries(const LiveChannels& live)
{
    return [&live](QStringView entry) -> std::optional<QString> {
        const std::optional<qint16> recorder = NumberOf(entry);
        if (!recorder || !live.hasRecorder(*recorder - 1))
            return std::nullopt;
        return entry.trimmed().toString();
    };
}
