#include "app/single_instance.h"

#include <QStandardPaths>

namespace ksm {

SingleInstance::SingleInstance()
    : lock(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/ksm.lock") {
    // An evening's game never makes the lock stale, only the end of its process does.
    lock.setStaleLockTime(0);
    // A program that was killed in the first moments of its start leaves a lock that names nobody.
    const bool locked = lock.tryLock(0) || (lock.removeStaleLockFile() && lock.tryLock(0));
    // Where no lock can be written, playing matters more than the lock.
    otherIsRunning = !locked && lock.error() == QLockFile::LockFailedError;
}

} // namespace ksm
