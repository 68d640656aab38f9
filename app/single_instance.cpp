#include "app/single_instance.h"

#include <QStandardPaths>

namespace ksm {

SingleInstance::SingleInstance()
    : lock(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/ksm.lock") {
    // An evening's game never makes the lock stale, only the end of its process does.
    lock.setStaleLockTime(0);
    // Where no lock can be written, playing matters more than the lock.
    otherIsRunning = !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError;
}

} // namespace ksm
