#pragma once

#include "platform/HttpClient.h"
#include "platform/Work.h"

// One request on behalf of a work: HttpFetch asked(http, request, work); const HttpReply reply = co_await asked;
// Stopping the work ends the request; the reply then is the failure Stopped.
class HttpFetch final : public WorkAwaitable
{
public:
    HttpFetch(HttpClient& http, HttpRequest request, Work& work)
        : WorkAwaitable(work)
        , m_http(http)
        , m_request(std::move(request))
    {
        m_reply.failure = HttpFailure::Stopped;
    }
    ~HttpFetch() override { abandon(); }

    auto operator co_await() { return Awaiter<HttpFetch>(*this); }
    HttpReply result() { return std::move(m_reply); }

protected:
    void begin() override
    {
        m_handle = m_http.start(m_request, [this](const HttpReply& reply) {
            m_handle = 0;
            m_reply = reply;
            finish();
        });
    }
    void abandon() override { m_http.cancel(std::exchange(m_handle, 0)); }

private:
    HttpClient& m_http;
    HttpRequest m_request;
    HttpReply m_reply;
    quint64 m_handle = 0;
};
