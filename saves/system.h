// What files need of the operating system beyond what Qt offers.
#pragma once

#include <QFile>
#include <QString>

namespace ksm {

/// Waits until the file's content is on the disk. Returns why it is not, or an empty text.
QString SyncFile(const QFile& file);
/// Waits until the names in the folder are on the disk, likewise.
QString SyncFolder(const QString& folder);

/// Whether a process of this number runs on this computer, whoever started it.
bool IsRunning(qint64 process);

} // namespace ksm
