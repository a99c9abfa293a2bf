#pragma once

#include <QObject>
#include <QPointer>
#include <coroutine>
#include <exception>
#include <functional>
#include <optional>
#include <qcorotask.h>
#include <utility>
#include <vector>

class WorkAwaitable;

// Work with devices that a window has started and owns: one coroutine at a time on the event loop, with what it does at
// present for the window to show, and a way to stop it. Everything it waits for ends at once with a stop, and the
// coroutine runs to its end inside stop() through its ordinary failure path; so what it refers to may go after that.
// Works on the thread that made it.
class Work : public QObject
{
    Q_OBJECT

public:
    using Body = std::function<QCoro::Task<>()>;
    // What becomes of it when the program is leaving: a window's work ends, what the close waits for goes on.
    enum class AtClose
    {
        Ends,
        GoesOn
    };

    explicit Work(QObject* parent = nullptr, AtClose atClose = AtClose::Ends);
    ~Work() override; // stops

    // Runs `body`, which is kept until its task has ended; `after` follows when the window's controls are back, but not
    // when this object goes. False, with nothing begun, while a task runs already or, AtClose::Ends, when the program
    // is leaving. An exception that leaves the task is lost: StartWork (app/log) logs it.
    bool start(Body body, std::function<void()> after = {});
    bool running() const { return m_running; }
    // It goes on by itself, for as long as the program does: nobody waits for its end.
    void setQuiet() { m_quiet = true; }
    bool isQuiet() const { return m_quiet; }
    bool endsAtClose() const { return m_atClose == AtClose::Ends; }

    // Ends the task: on Stop, on Esc, with the window. SetClosing(true) does it for every work that ends at the close.
    void stop();
    // Whether it was stopped since it was started; true also while the program is leaving, unless it goes on then. A
    // stopped work waits for nothing any more.
    bool stopped() const;

    // What goes on, in the words of the live language, and how far it is: percent, or -1 where nobody can know.
    void say(const QString& step, int percent = -1);
    const QString& step() const { return m_step; }
    int percent() const { return m_percent; }

signals:
    // A task has begun or ended: the window holds its controls back meanwhile. Not sent by the destructor.
    void runningChanged(bool running);
    void stepChanged();

private:
    friend class WorkAwaitable;
    static QCoro::Task<> drive(QPointer<Work> work, Body body, std::function<void()> after);

    std::vector<WorkAwaitable*> m_waiting;
    const AtClose m_atClose;
    bool m_running = false;
    bool m_stopped = false;
    bool m_leaving = false;
    bool m_quiet = false;
    QString m_step;
    int m_percent = -1;
};

// Stops every work that ends at the close; SetClosing calls it.
void StopAllWork();
// Whether a work is running that somebody waits for.
// Whether such a work is running.
bool AnyWorkRunning();

// What a coroutine waits for on behalf of a work. Of a stopped work it does not even begin. A subclass begins in
// begin(), calls finish() once when it is done, never from within begin(), and gives up in abandon(), after which the
// coroutine goes on with whatever result says "stopped". It is made in a statement of its own and then awaited by its
// name: this compiler destroys twice what is made inside a co_await expression.
class WorkAwaitable
{
public:
    explicit WorkAwaitable(Work& work)
        : m_work(work)
    {
    }
    virtual ~WorkAwaitable();
    WorkAwaitable(const WorkAwaitable&) = delete;
    WorkAwaitable& operator=(const WorkAwaitable&) = delete;

protected:
    // What `operator co_await` of a subclass returns; its result() is the result. A light object, since this compiler
    // copies it.
    template <class Awaitable>
    class Awaiter
    {
    public:
        explicit Awaiter(Awaitable& awaitable)
            : m_awaitable(awaitable)
        {
        }
        bool await_ready() const { return base().m_work.stopped(); }
        void await_suspend(std::coroutine_handle<> waiting) { base().suspend(waiting); }
        auto await_resume() { return m_awaitable.result(); }

    private:
        WorkAwaitable& base() const { return m_awaitable; }
        Awaitable& m_awaitable;
    };

    virtual void begin() = 0;
    virtual void abandon() = 0;
    void finish(); // the coroutine goes on inside; this object may be gone afterwards

private:
    friend class Work;
    void suspend(std::coroutine_handle<> waiting);
    void leave();

    Work& m_work;
    std::coroutine_handle<> m_waiting;
};

// Pause pause(work, milliseconds): true when the time has passed, false when the work was stopped.
class Pause final : public WorkAwaitable
{
public:
    Pause(Work& work, int milliseconds);
    ~Pause() override;
    auto operator co_await() { return Awaiter<Pause>(*this); }
    bool result() const { return m_passed; }

protected:
    void begin() override;
    void abandon() override;

private:
    int m_milliseconds;
    std::unique_ptr<QObject> m_timer;
    bool m_passed = false;
};

// Runs tasks side by side, at most `atOnce` at a time, begun in their order. The outcomes are in the order of the
// tasks, whatever the order of their ends; a stopped work begins no more of them, and those have none. The first
// exception in that order is thrown once all have ended.
template <class T>
QCoro::Task<std::vector<std::optional<T>>> Together(Work& work, std::vector<std::function<QCoro::Task<T>()>> tasks,
                                                    std::size_t atOnce)
{
    std::vector<std::optional<T>> outcomes(tasks.size());
    std::vector<std::exception_ptr> failures(tasks.size());
    std::size_t next = 0;
    const auto lane = [&]() -> QCoro::Task<> {
        while (next < tasks.size() && !work.stopped()) {
            const std::size_t index = next++;
            try {
                QCoro::Task<T> task = tasks[index]();
                outcomes[index] = co_await task;
            } catch (...) {
                failures[index] = std::current_exception();
            }
        }
    };
    std::vector<QCoro::Task<>> lanes;
    for (std::size_t i = 0; i < atOnce && i < tasks.size(); ++i)
        lanes.push_back(lane());
    for (QCoro::Task<>& running : lanes)
        co_await running;
    for (const std::exception_ptr& failure : failures) {
        if (failure)
            std::rethrow_exception(failure);
    }
    co_return outcomes;
}
