#include "device/bridge/Form_COM.h"

#include "app/log/Module_Log.h"
#include "support/Conversions.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace {

qint16 TakeFreeRow(std::vector<EventRequest>& rows, qint16 busy)
{
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].RequestID < 0 && rows[row].Busy == 0) {
            rows[row] = EventRequest();
            rows[row].Busy = busy;
            return static_cast<qint16>(row);
        }
    }
    return -1;
}

} // namespace

Form_COM::Form_COM(QObject* parent)
    : QObject(parent)
    , web(http)
    , poller(http)
    , device(web, poller)
    , MailRequests(1)
    , AlertRequests(1)
{
    web.Initialise();
    // Queued, so that whoever is connected directly has read the reply before it goes.
    connect(
        &web, &WebBridge::RequestEnded, this,
        [this](qint32 request, qint32 status) {
            if (status >= 0)
                web.ReleaseRequest(kReleaseCgi, request);
            for (EventRequest& row : AlertRequests) {
                if (row.RequestID == request)
                    row = EventRequest();
            }
        },
        Qt::QueuedConnection);
    connect(&web, &WebBridge::QueryEnded, this, [this](qint32 request, qint32, qint32 status) {
        if (status >= 0)
            web.ReleaseRequest(kReleaseQuery, request);
    });
    connect(&device, &DeviceBridge::OnNotifyServiceStatus, this, &Form_COM::notifyServiceStatus);
}

Form_COM::~Form_COM() = default;

void Form_COM::Unload()
{
    finder.Stop();
    emit Unloading();
}

qint16 Form_COM::GetFreeSlot(qint16 kind)
{
    if (kind != kMailSlot && kind != kAlertSlot)
        return 0;
    const qint16 row = kind == kAlertSlot ? FindFreeAlertSlot() : FindFreeMailSlot();
    if (row >= 0)
        return row;
    std::vector<EventRequest>& rows = kind == kAlertSlot ? AlertRequests : MailRequests;
    if (rows.size() > static_cast<std::size_t>(std::numeric_limits<qint16>::max()))
        throw std::length_error("CGI ID is full !");
    rows.push_back({-1, -1, -1, {}});
    return static_cast<qint16>(rows.size() - 1);
}

qint16 Form_COM::FindFreeMailSlot()
{
    return TakeFreeRow(MailRequests, -1);
}

qint16 Form_COM::FindFreeAlertSlot()
{
    return TakeFreeRow(AlertRequests, 0);
}

qint16 Form_COM::FindServiceSlot(qint16 svrIndex) const
{
    for (std::size_t row = 0; row < Services.size(); ++row) {
        if (Services[row].SvrIndex == svrIndex)
            return static_cast<qint16>(row);
    }
    return -1;
}

void Form_COM::SetProToDeviceBridge(std::span<const SVRRecord> list)
{
    device.SetServiceTimeout(60);
    const std::size_t count = std::min<std::size_t>(list.size(), kMaxSVR);
    const auto served = [&](std::size_t index) {
        return index < count && !list[index].sSVR_IP.isEmpty() && list[index].sSVR_DeviceType == kFamilyTXR632;
    };
    for (std::size_t row = 0; row < Services.size(); ++row) {
        const auto index = static_cast<std::size_t>(Services[row].SvrIndex);
        if (Services[row].SvrIndex >= 0 && (!served(index) || Services[row].device != AddressOf(list[index]))) {
            device.RemoveService(static_cast<qint16>(row));
            Services[row] = ServiceSlot();
        }
    }
    for (std::size_t index = 0; index < count; ++index) {
        if (!served(index))
            continue;
        const SVRRecord& svr = list[index];
        const auto svrIndex = static_cast<qint16>(index);
        const qint16 row = FindServiceSlot(svrIndex);
        if (row >= 0) {
            if (Services[static_cast<std::size_t>(row)].Status > 0)
                continue;
            device.RemoveService(row);
            Services[static_cast<std::size_t>(row)] = ServiceSlot();
        }
        const qint16 service =
            device.AddService(svr.sSVR_IP, svr.iSVR_HttpPort, svr.sSVR_UserName, svr.sSVR_Password, QString(CMS_Core));
        if (service < 0)
            continue;
        if (static_cast<std::size_t>(service) >= Services.size())
            Services.resize(static_cast<std::size_t>(service) + 1);
        Services[static_cast<std::size_t>(service)] = {svrIndex, 0, AddressOf(svr)};
    }
}

void Form_COM::notifyServiceStatus(qint16 service, qint32 status)
{
    Trapped("Form_COM - DeviceBridge_OnNotifyServiceStatus",
            [&] { At(Services, service).Status = static_cast<qint16>(status); });
}
