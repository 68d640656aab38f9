// Writes seeds for the fuzzers: fuzz_seeds FOLDER, which gets one folder for each target.

#include "planets/planet_list_file.h"
#include "saves/game_text.h"
#include "tests/saves/sample_game.h"

#include <QDir>
#include <QFile>

#include <array>

namespace {

bool Write(const QString& folder, const QString& name, const QByteArray& bytes) {
    QFile file(QDir(folder).filePath(name));
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

// Small games keep the fuzzer quick.
ksm::GameState SmallGame() {
    ksm::GameState game;
    ksm::SetPlanets(game.Game, *ksm::ReadPlanetList("Ith,2,1,b\r\nVeran"));
    return game;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        return EXIT_FAILURE;
    }
    const QString lists = QString(argv[1]) + "/fuzz_planet_list";
    const QString games = QString(argv[1]) + "/fuzz_saved_game";
    const std::array planetLists{"'comment\r\nAlpha,2,1,blue\r\nBeta,2.5,&HfF,G\r\n",
                                 "\xEF\xBB\xBFZo\xC3\xAB,1e2,-.5D+1,r\r\rx,&O17,300",
                                 "Zo\xEB\x80, 1 2,\t3\n,Red,more"};
    bool done = Write(games, "sample", *WriteGame(ksm::SampleGame())) &&
                Write(games, "small", *WriteGame(SmallGame())) &&
                Write(lists, "many", QByteArray("P,1,2,b\r\n").repeated(102));
    for (const char* list : planetLists) {
        done = done && Write(lists, QString("list%1").arg(qstrlen(list)), list);
    }
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}
