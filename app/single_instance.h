// One running program for each user.
#pragma once

#include <QLockFile>

namespace ksm {

/// Locks a file of the user's for as long as it lives, which tells whether the program runs
/// already. The lock of a program that crashed counts for nothing.
class SingleInstance {
public:
    SingleInstance();

    /// Whether another running program has the lock.
    bool OtherIsRunning() const { return otherIsRunning; }

private:
    QLockFile lock;
    bool otherIsRunning;
};

} // namespace ksm
