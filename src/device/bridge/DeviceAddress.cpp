#include "device/bridge/DeviceAddress.h"

#include "platform/HttpClient.h"
#include "store/records/SVRRecord.h"

DeviceAddress AddressOf(const SVRRecord& svr)
{
    return {svr.sSVR_IP, svr.iSVR_HttpPort, svr.sSVR_UserName, svr.sSVR_Password};
}

HttpRequest RequestTo(const DeviceAddress& device)
{
    HttpRequest request;
    request.address = device.address;
    request.port = device.port;
    request.user = device.user;
    request.password = device.password;
    return request;
}
