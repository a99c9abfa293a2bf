#include "recorders/camera/CameraSearchModel.h"

#include "app/shell/Messages.h"
#include "recorders/camera/ChannelListModel.h"

CameraSearchModel::CameraSearchModel(QObject* parent)
    : TableModel(parent)
{
    using Kind = TableColumn::Kind;
    setColumns({
        {.head = 379,
         .width = 200,
         .kind = Kind::Figures,
         .text = Of(m_cameras, &FoundCamera::IP),
         .sort = [this](int record) { return AddressSortKey(camera(record).IP); }},
        {.head = Message::kBrand, .width = 200, .text = Of(m_cameras, &FoundCamera::Manufacturer)},
        {.head = Message::kModel, .text = Of(m_cameras, &FoundCamera::Model)},
        {.head = 551, .width = 110, .kind = Kind::Number, .text = Of(m_cameras, &FoundCamera::HTTPPort)},
    });
}

void CameraSearchModel::setCameras(std::vector<FoundCamera> cameras)
{
    m_cameras = std::move(cameras);
    setRecordCount(static_cast<int>(m_cameras.size()));
}
