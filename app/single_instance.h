// One running program for each user.
#pragma once

#include <QLockFile>

namespace ksm {

/// Holds the place of the running instance for as long as it lives. A program that crashed leaves a
/// lock behind that the next one takes over.
class SingleInstance {
public:
    SingleInstance();

    /// Whether another instance holds the place already.
    bool OtherIsRunning() const { return otherIsRunning; }

private:
    QLockFile lock;
    bool otherIsRunning;
};

} // namespace ksm
