#include "device/Form_COM.h"

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
}

Form_COM::~Form_COM() = default;

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
