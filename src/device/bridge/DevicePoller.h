#pragma once

#include "device/bridge/DeviceAddress.h"
#include "platform/HttpClient.h"
#include "platform/Work.h"

#include <functional>
#include <memory>
#include <vector>

// How the station gets on with a device.
struct ConnectionState
{
    enum class Kind
    {
        None, // not asked
        Checking,
        Connected,
        Refused, // the device answers and does not take the login
        Lost     // no useful answer
    } kind = Kind::None;
    int message = 0; // message number that says it in words, 0 for None
    friend bool operator==(const ConnectionState&, const ConnectionState&) = default;
};

// What a reply to /getgid.cgi says.
ConnectionState ConnectionOf(const HttpReply& reply);

// Asks devices /getgid.cgi, again and again as long as somebody wants to know whether they answer. A device has one
// request at a time, however many want to know. One that refuses the login is asked ever more rarely, up to 32 times
// the interval: many lock an account after some wrong passwords. The end of the program ends every request at once.
class DevicePoller
{
    struct Device;

public:
    using Told = std::function<void(const ConnectionState&)>;

    // A wish to know, as long as it lives.
    class Subscription
    {
    public:
        // The device is asked at once, unless it is being asked already. `patience`: seconds of silence that count as
        // no answer; a request lasts as long as the least of those who want to know. `told` is called with each answer,
        // from the event loop; it may end subscriptions, this one included. The poller must outlive it.
        Subscription(DevicePoller& poller, const DeviceAddress& device, double patience, Told told);
        ~Subscription();
        Subscription(const Subscription&) = delete;
        Subscription& operator=(const Subscription&) = delete;

        const DeviceAddress& device() const;
        const ConnectionState& state() const; // last answer, Checking before the first one

    private:
        friend class DevicePoller;
        DevicePoller& m_poller;
        std::shared_ptr<Device> m_device;
        double m_patience;
        Told m_told;
    };

    explicit DevicePoller(HttpClient& http);
    ~DevicePoller();
    DevicePoller(const DevicePoller&) = delete;
    DevicePoller& operator=(const DevicePoller&) = delete;

    // Pause between an answer and the next question, in milliseconds.
    void SetInterval(int milliseconds) { m_interval = milliseconds; }

private:
    void join(Subscription& subscription, const DeviceAddress& address);
    void leave(Subscription& subscription);
    QCoro::Task<> poll(std::shared_ptr<Device> device);
    static void answered(Device& device, const HttpReply& reply, double waited);

    HttpClient& m_http;
    std::vector<std::shared_ptr<Device>> m_devices;
    int m_interval = 10'000;
};
