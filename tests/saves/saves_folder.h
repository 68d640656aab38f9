// A folder of its own for the saved games of a test.
#pragma once

#include "saves/game_file.h"
#include "tests/saves/sample_game.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ksm {

/// The current folder of the test is an empty one.
class SavesFolder : public testing::Test {
protected:
    SavesFolder() { QDir::setCurrent(folder.path()); }
    ~SavesFolder() override { QDir::setCurrent(oldFolder); }

    static QStringList Files() { return QDir().entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    static GameState WithNotes(const std::string& notes) {
        GameState game = SampleGame();
        game.NotesText = notes;
        return game;
    }
    /// Or why there are none.
    static std::string NotesIn(const QString& name) {
        const Outcome<GameState> read = LoadGameFile(name);
        return read ? read->NotesText : read.Reason();
    }

    const QString oldFolder = QDir::currentPath();
    const QTemporaryDir folder;
};

} // namespace ksm
