// Files that are replaced whole or not at all.
#pragma once

#include <QByteArray>
#include <QString>

namespace ksm {

enum class Durability {
    /// A process that is killed leaves the old file or the new one, whole.
    Process,
    /// So does a computer that stops; the call waits for the disk.
    Disk
};

/// Gives the file at `path` this content: written beside it and renamed over it. Whatever goes
/// wrong before that leaves the file as it was. Where `copy` names a file, a file that was at
/// `path` stays there; what that name meant before is lost. Returns why it failed, or an empty
/// text.
QString ReplaceFile(const QString& path, const QByteArray& content, Durability durability,
                    const QString& copy = {});

/// Removes from the folder what processes of this computer left behind that were killed in the
/// middle of replacing a file.
void RemoveLeftovers(const QString& folder);

} // namespace ksm
