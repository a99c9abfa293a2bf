#pragma once

#include <QLockFile>
#include <memory>

// One running program a station folder. The lock belongs to the process: a crashed owner's lock is taken over.
class SingleInstance
{
public:
    // True when this process is the only one (it holds the lock from now on), or when no lock can be made at all.
    bool acquire();

private:
    std::unique_ptr<QLockFile> m_lock;
};
