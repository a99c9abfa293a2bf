#include "recorders/NVRListModel.h"

#include "app/language/Languages.h"
#include "app/shell/Messages.h"

using namespace Qt::StringLiterals;

namespace {

Status StatusOf(ConnectionState::Kind kind)
{
    switch (kind) {
    case ConnectionState::Kind::None:
        break;
    case ConnectionState::Kind::Checking:
        return Status::Busy;
    case ConnectionState::Kind::Connected:
        return Status::Ok;
    case ConnectionState::Kind::Refused:
        return Status::Warning;
    case ConnectionState::Kind::Lost:
        return Status::Bad;
    }
    return Status::None;
}

QString ShownAddress(const SVRRecord& record)
{
    return record.sSVR_IP + u':' + QString::number(record.iSVR_HttpPort);
}

} // namespace

QString ShownModel(const SVRRecord& record)
{
    const bool hidden = record.sSVR_Brand == "KEStrane"_L1 && record.sSVR_DisplayDeviceType.startsWith(u'S');
    return hidden ? u"-"_s : record.sSVR_DisplayDeviceType;
}

NVRListModel::NVRListModel(const RecorderSet& recorders, const ConnectionWatch& watch, QObject* parent)
    : TableModel(parent)
    , m_recorders(recorders)
{
    using Kind = TableColumn::Kind;
    const auto& list = recorders.SVRList;
    const auto named = [&list](int message) {
        return [&list, message](int slot) { return QString(GetLangString(message) + u' ' + At(list, slot).sSVR_Name); };
    };
    setColumns({
        {.headText = [] { return u"NVR"_s; },
         .width = 76,
         .kind = Kind::Number,
         .text = [](int slot) { return slot + 1; }},
        {.head = Message::kName, .text = Of(list, &SVRRecord::sSVR_Name)},
        {.headText = [] { return QString(GetLangString(Message::kAddress) + u':' + GetLangString(Message::kPort)); },
         .width = 196,
         .kind = Kind::Figures,
         .text = Of(list, ShownAddress)},
        {.head = Message::kBrand, .width = 92, .text = Of(list, &SVRRecord::sSVR_Brand)},
        {.head = Message::kModel, .width = 92, .text = Of(list, ShownModel)},
        {.head = 271, .width = 92, .kind = Kind::Number, .text = Of(list, CameraCount)},
        {.kind = Kind::Open, .words = named(Message::kModify)},
        {.kind = Kind::Remove, .words = named(Message::kRemove)},
        {.head = 956,
         .width = 196,
         .kind = Kind::State,
         .text =
             [&watch](int slot) {
                 const int message = watch.state(slot).message;
                 return message == 0 ? QString() : GetLangString(message);
             },
         .status = [&watch](int slot) { return StatusOf(watch.state(slot).kind); }},
    });
    connect(&watch, &ConnectionWatch::changed, this, &NVRListModel::recordChanged);
}

void NVRListModel::refill()
{
    std::vector<int> occupied;
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        if (!At(m_recorders.SVRList, slot).sSVR_IP.isEmpty())
            occupied.push_back(slot);
    }
    setRecords(std::move(occupied));
}
