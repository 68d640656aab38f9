#include "saves/game_file.h"

#include "planets/read_file.h"
#include "saves/kept_files.h"
#include "saves/replace_file.h"

#include <QFile>

#include <algorithm>
#include <system_error>

namespace ksm {

namespace {

namespace fs = std::filesystem;

// With "~" behind it a name has at most 255 bytes, the most that file systems take.
constexpr std::size_t LongestName = 254;

fs::path PathOf(const QString& name) {
    return fs::path(".") / QFile::encodeName(name).toStdString();
}

Failure Explain(const fs::path& path, const std::string& reason) {
    std::error_code ignored;
    const fs::path folder = fs::absolute(path, ignored).lexically_normal().parent_path();
    return {'"' + path.filename().string() + "\" in the folder \"" + folder.string() +
            "\": " + reason};
}

Outcome<> CheckName(const fs::path& path) {
    if (std::ranges::find(KeptGameNames, path.filename()) != KeptGameNames.end()) {
        return Failure{"The program itself keeps games under this name. Choose another one."};
    }
    const std::size_t bytes = path.filename().native().size();
    return bytes <= LongestName ? Outcome()
                                : Failure{"The name has " + std::to_string(bytes) + " bytes, but " +
                                          std::to_string(LongestName) + " are the most possible."};
}

Outcome<> Save(const fs::path& path, const GameState& state) {
    const Outcome<QByteArray> content = WriteGame(state);
    if (!content) {
        return Failure{content.Reason()};
    }
    for (const auto& check : {CheckFile, CheckName}) {
        if (Outcome<> checked = check(path); !checked) {
            return checked;
        }
    }
    // Saving the same game again changes nothing: it is the older one that is kept.
    const std::string bytes = content->toStdString();
    const Outcome<std::string> old = ReadFile(path);
    const bool isSame = old && *old == bytes;
    return ReplaceFile(path, bytes, Durability::Disk, isSame ? fs::path() : fs::path(path) += '~');
}

} // namespace

Outcome<> SaveGameFile(const QString& name, const GameState& state) {
    // Through a link the game goes to where the link leads.
    std::error_code isNew;
    fs::path path = fs::canonical(PathOf(name), isNew);
    if (isNew) {
        path = PathOf(name);
    }
    if (const Outcome<> saved = Save(path, state); !saved) {
        return Explain(path, saved.Reason());
    }
    RemoveLeftovers(path.parent_path());
    return {};
}

Outcome<GameState> LoadGameFile(const QString& name) {
    const fs::path path = PathOf(name);
    const Outcome<std::string> bytes = ReadFile(path);
    if (!bytes) {
        return Explain(path, bytes.Reason());
    }
    Outcome<GameState> game = ReadGame(QByteArray::fromStdString(*bytes));
    if (!game) {
        return Explain(path, game.Reason());
    }
    return game;
}

} // namespace ksm
