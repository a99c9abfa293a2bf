#include "device/bridge/DevicePoller.h"

#include "app/log/StartWork.h"
#include "platform/HttpFetch.h"

#include <QElapsedTimer>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMaxReply = 64 * 1024;
constexpr int kMostRefusals = 5; // each doubles the pause

enum Message
{
    kConnected = 896,
    kChecking = 957,
    kLoginRefused = 958,
    kNoAnswer = 959,
    kNotResolved = 960,
    kConnectionRefused = 961,
    kUnexpected = 962
};

} // namespace

ConnectionState ConnectionOf(const HttpReply& reply)
{
    using Kind = ConnectionState::Kind;
    switch (reply.failure) {
    case HttpFailure::None:
        break;
    case HttpFailure::NotResolved:
        return {Kind::Lost, kNotResolved};
    case HttpFailure::Refused:
        return {Kind::Lost, kConnectionRefused};
    case HttpFailure::TimedOut:
        return {Kind::Lost, kNoAnswer};
    default:
        return {Kind::Lost, kUnexpected};
    }
    if (reply.status == 401)
        return {Kind::Refused, kLoginRefused};
    if (!reply.succeeded() || !reply.body.toUpper().contains("OK"))
        return {Kind::Lost, kUnexpected};
    return {Kind::Connected, kConnected};
}

// A device that somebody wants to know about, and its questions.
struct DevicePoller::Device
{
    Device() { work.setQuiet(); }

    DeviceAddress address;
    ConnectionState state{ConnectionState::Kind::Checking, kChecking};
    std::vector<Subscription*> subscriptions;
    Work work;
    double seconds = 0;    // time-out of the question under way, 0 without one
    QElapsedTimer silence; // since the first question that got no answer; not valid after one
    int refusals = 0;      // one after the other
    bool telling = false;  // an answer is on its way to the subscriptions
    bool again = false;    // somebody has joined meanwhile

    double patience() const
    {
        const auto least = std::min_element(subscriptions.begin(), subscriptions.end(),
                                            [](auto* one, auto* other) { return one->m_patience < other->m_patience; });
        return (*least)->m_patience;
    }
};

DevicePoller::Subscription::Subscription(DevicePoller& poller, const DeviceAddress& device, double patience, Told told)
    : m_poller(poller)
    , m_patience(patience)
    , m_told(std::move(told))
{
    m_poller.join(*this, device);
}

DevicePoller::Subscription::~Subscription()
{
    m_poller.leave(*this);
}

const DeviceAddress& DevicePoller::Subscription::device() const
{
    return m_device->address;
}

const ConnectionState& DevicePoller::Subscription::state() const
{
    return m_device->state;
}

DevicePoller::DevicePoller(HttpClient& http)
    : m_http(http)
{
}

DevicePoller::~DevicePoller()
{
    for (const std::shared_ptr<Device>& device : m_devices)
        device->work.stop();
}

void DevicePoller::join(Subscription& subscription, const DeviceAddress& address)
{
    const auto found = std::find_if(m_devices.begin(), m_devices.end(),
                                    [&](const auto& device) { return device->address == address; });
    const bool known = found != m_devices.end();
    const std::shared_ptr<Device> device = known ? *found : m_devices.emplace_back(std::make_shared<Device>());
    device->address = address;
    device->subscriptions.push_back(&subscription);
    device->refusals = 0;
    subscription.m_device = device;
    if (device->telling) {
        device->again = true;
    } else if (device->seconds == 0 || subscription.m_patience < device->seconds) {
        device->work.stop();
        StartWork(device->work, "DevicePoller - poll"_L1, [this, device] { return poll(device); });
    }
}

void DevicePoller::leave(Subscription& subscription)
{
    const std::shared_ptr<Device> device = subscription.m_device;
    std::erase(device->subscriptions, &subscription);
    if (!device->subscriptions.empty())
        return;
    std::erase(m_devices, device);
    device->work.stop();
}

QCoro::Task<> DevicePoller::poll(std::shared_ptr<Device> device)
{
    bool more = true;
    while (more) {
        HttpRequest question = RequestTo(device->address);
        question.target = "/getgid.cgi"_ba;
        question.maxBytes = kMaxReply;
        question.seconds = device->seconds = device->patience();
        if (!device->silence.isValid())
            device->silence.start();
        HttpFetch asked(m_http, question, device->work);
        const HttpReply reply = co_await asked;
        const double waited = std::exchange(device->seconds, 0);
        if (device->work.stopped())
            co_return;
        answered(*device, reply, waited);
        Pause pause(device->work, device->again ? 0 : m_interval << device->refusals);
        more = co_await pause;
    }
}

void DevicePoller::answered(Device& device, const HttpReply& reply, double waited)
{
    device.state = ConnectionOf(reply);
    device.refusals =
        device.state.kind == ConnectionState::Kind::Refused ? qMin(device.refusals + 1, kMostRefusals) : 0;
    const bool silent = reply.failure == HttpFailure::TimedOut;
    const auto patient = [&](const Subscription& one) {
        return silent && one.m_patience > waited && !device.silence.hasExpired(qint64(one.m_patience * 1000));
    };
    device.telling = true;
    device.again = false;
    const std::vector<Subscription*> before = device.subscriptions;
    for (Subscription* one : before) {
        const auto& still = device.subscriptions;
        if (std::find(still.begin(), still.end(), one) == still.end() || patient(*one))
            continue;
        const Told told = one->m_told; // it may end its own subscription
        const ConnectionState state = device.state;
        Trapped("DevicePoller - answered", [&] { told(state); });
    }
    device.telling = false;
    if (!silent)
        device.silence.invalidate();
}
