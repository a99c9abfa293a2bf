#pragma once

#include "app/log/Module_Log.h"
#include "platform/Work.h"

// Awaits `task` like Trapped: an exception becomes one log line under `source`. Result: whether it went through.
QCoro::Task<bool> TrappedTask(QString source, QCoro::Task<> task);

// Starts a work whose exceptions end in the log under `source` ("Object - Procedure"). Result as Work::start.
bool StartWork(Work& work, const QString& source, Work::Body body);
