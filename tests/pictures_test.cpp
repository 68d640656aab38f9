// Every window to the pixel. A picture in pictures/ is one that somebody looked at and found right.

#include "controls/message_box.h"
#include "dialogs/dice_form.h"
#include "tests/game_window.h"
#include "tests/saves/sample_game.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFontDatabase>
#include <QMenu>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <map>

namespace ksm {
namespace {

/// An evening in which as much as possible of what a window can show is there.
struct Evening : GameWindow {
    explicit Evening(int players) : GameWindow(DeliveredGame()) {
        const QStringList names =
            QString("Fay the Unforgettable of Arden|<b>Bo</b>|Cleo & Co|Dora|Emil|"
                    "Hilde|Ivo|Gus the Incomparable of Elsewhere|Jana|Wil")
                .split('|');
        SetPlayers(players);
        for (int player = 1; player <= players; ++player) {
            Race(player, static_cast<ksm::Race>((players + player) % RaceCount));
            Click("Enviro", player);
            Click(player % 2 == 0 ? "PellamTools" : "Micro", player);
            Move("DockScroll", player, player % 3 * 4);
            Click("PlayerName", player);
            Find<QLineEdit>("NameEntry")->setText(names[player - 1]);
            Click("NameColor", player + 2);
            Click("ColorOK");
            DeleteClosed();
        }
    }

    static GameState DeliveredGame() {
        GameState game;
        SetPlanets(game.Game, *ReadPlanetListFile(DELIVERED_PLANET_LIST));
        return game;
    }
    void Play() {
        const int players = state.Game.NumPlayers;
        Start();
        Move("PlanetScroller", 14);
        for (int row = 0; row < 12; ++row) {
            Drag(row, 1 + row % players);
        }
        for (int player = 1; player <= players; ++player) {
            for (int other = player + 1; other <= players; other += 3) {
                Click("AddTAbutton");
                Click("TradePlayer", other % 2 == 0 ? other : player);
                Click("TradePlayer", other % 2 == 0 ? player : other);
            }
        }
        Choose("TFree");
        Choose("Tres");
        Click("TradePlayer", 1);
        Click("TradePlayer", std::min(players, 8));
        Click("InvasionPlayer", 1);
    }
};

QImage Grab(QWidget& window, const QRect& part = {{}, QSize(-1, -1)}) {
    return window.grab(part).toImage();
}

/// One below the other.
QImage Column(const QList<QImage>& parts) {
    QSize size;
    for (const QImage& part : parts) {
        size = {std::max(size.width(), part.width()), size.height() + part.height()};
    }
    QImage column(size, QImage::Format_RGB32);
    column.fill(Qt::white);
    QPainter painter(&column);
    for (int top = 0; const QImage& part : parts) {
        painter.drawImage(0, top, part);
        top += part.height();
    }
    return column;
}

QImage Shown(const GameState& state) {
    GameWindow game(state);
    game.Move("PlanetScroller", 0);
    return Grab(game.window);
}

QImage AtScale(double scale, QWidget& window, const QRect& part) {
    QImage scaled((part.size() * scale), QImage::Format_RGB32);
    scaled.setDevicePixelRatio(scale);
    window.render(&scaled, {}, part);
    scaled.setDevicePixelRatio(1);
    return scaled;
}

/// Lines are as even at an uneven scale.
QImage Scaled() {
    Evening evening(6);
    evening.Play();
    evening.Choose("Stech");
    return Column({AtScale(1.75, *evening.window.centralWidget(), QRect(440, 30, 140, 290)),
                   AtScale(1.75, *evening.Find<QWidget>("TechForm"), QRect(180, 160, 180, 140))});
}

QImage DragInMidAir() {
    Evening evening(6);
    evening.Start();
    evening.Press(3);
    evening.MoveOver(evening.Owner(5));
    return Grab(evening.window, QRect(0, 0, 340, 220));
}

QImage FocusRings() {
    Evening evening(3);
    evening.Activate();
    QTest::mousePress(evening.Find<QWidget>("PlayNumScroll"), Qt::LeftButton, {}, QPoint(8, 5));
    QList<QImage> controls;
    for (const char* name :
         {"PlayNumScroll", "OptionNormal", "Race(1)", "StartGameButton", "PlayerName(1)",
          "PlayerName(3)", "DockScroll(1)", "Enviro(2)", "AddTAbutton", "TradePlayer(3)",
          "InvasionPlayer(20)", "InvasionPlanet(0)", "PlanetScroller"}) {
        auto* control = evening.Find<QWidget>(name);
        control->setFocus(Qt::TabFocusReason);
        const QRect place(control->mapTo(&evening.window, QPoint()), control->size());
        controls << Grab(evening.window, place.adjusted(-4, -4, 4, 4));
        if (name == QString("StartGameButton")) {
            evening.Start();
        }
    }
    return Column(controls);
}

QImage NameDialog() {
    Evening evening(2);
    evening.Find("PlayerName", 2)->Activate();
    return Grab(*evening.Find<QWidget>("ColorSelectForm"));
}

/// After each roll as many dice as just fell, but always in the same way.
QImage Dice() {
    QWidget owner;
    DiceForm form(&owner);
    auto* scroll = form.findChild<QScrollBar*>("Scroll");
    form.show();
    QList<QImage> rolls{OnScreen(form)};
    for (const int position : {5, 0, 7, 4, scroll->maximum()}) {
        scroll->setValue(position);
        form.findChild<QPushButton*>("Command1")->click();
        const auto places = form.findChildren<CaptionLabel*>(QRegularExpression("Label1"));
        auto left = std::ranges::count(places, QString(), &CaptionLabel::Caption);
        for (int value = 4; CaptionLabel * place : places) {
            place->SetCaption(left-- > 0 ? QString() : QString::number(value++));
        }
        rolls << OnScreen(form);
    }
    return Column(rolls);
}

/// Each bar moved, and the costs, which stay when the bars stand at zero again.
QImage Modifiers() {
    Evening evening(2);
    QList<QImage> seen;
    for (int bar = 0; bar < 4; ++bar) {
        evening.Choose("MenuTechMod");
        evening.Move("VScroll1", bar, QList{0, 12, 30, 16}[bar]);
        seen << Grab(*evening.Find<QWidget>("TechModForm"));
        evening.Close("TechModForm");
    }
    evening.Choose("MenuTechMod");
    QTest::mouseClick(evening.Find<QWidget>("VScroll1", 3), Qt::LeftButton, {}, QPoint(8, 77));
    seen << Grab(*evening.Find<QWidget>("TechModForm")) << Grab(evening.window, {0, 380, 640, 86});
    return Column(seen);
}

/// The menus, and each law switched, with its mark and its effects.
QImage Laws() {
    Evening evening(10);
    evening.Play();
    QList<QImage> seen{Grab(*evening.Find<QMenu>("File")), Grab(*evening.Find<QMenu>("Techs"))};
    for (const char* law : {"MenuOrlen", "MenuLabour", "TFree", "TRestr", "Tres", "TStop"}) {
        evening.Choose(law);
        for (const char* menu : {"MenuOptions", "MenuLaws", "Trad"}) {
            seen << Grab(*evening.Find<QMenu>(menu));
        }
        seen << Grab(evening.window, {0, 20, 640, 290});
    }
    return Column(seen);
}

QImage Message() {
    const MessageBoxes boxes;
    ShowMessage(QMessageBox::Critical, "Title", "As <b>typed</b> & no other",
                "A <i>reason</i> of two lines\nthat helps");
    return boxes.Seen;
}

/// Opens a window from the menu, in a folder with a few games.
QImage Opened(const char* item, const char* form) {
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    for (const char* name : {"friday.ksm", "a long evening with everybody.ksm", ".ksm", "B.ksm",
                             "saturday.ksm", "C.KSM", "other.txt"}) {
        EXPECT_TRUE(QFile(name).open(QIODevice::WriteOnly));
    }
    Evening evening(2);
    evening.state.NotesText = std::string(1001, '!') + "\nAda owes Bo 5.\n\tOne\tTwo\n"
                                                       "A letter by letter wrap would show here.";
    evening.Choose(item);
    QDir::setCurrent(before);
    return Grab(*evening.Find<QWidget>(form));
}

std::map<QString, std::function<QImage()>> Scenes() {
    std::map<QString, std::function<QImage()>> scenes{
        {"start", [] { return Shown({}); }},
        {"loaded", [] { return Shown(SampleGame()); }},
        {"scaled", Scaled},
        {"drag", DragInMidAir},
        {"focus", FocusRings},
        {"name", NameDialog},
        {"dice", Dice},
        {"modifiers", Modifiers},
        {"laws", Laws},
        {"message", Message},
        {"notes", [] { return Opened("Notes", "NoteForm"); }},
        {"save", [] { return Opened("SGame", "SaveForm"); }},
        {"load", [] { return Opened("LGame", "LoadForm"); }},
        {"chart", [] { return Opened("Stech", "TechForm"); }},
        {"expansion", [] { return Opened("HTech", "TechForm2"); }},
        {"about", [] { return Opened("About", "AboutForm"); }},
    };
    for (int players = MinPlayers; players <= MaxPlayers; ++players) {
        for (const bool started : {false, true}) {
            scenes[QString(started ? "play-%1" : "setup-%1").arg(players)] = [=] {
                Evening evening(players);
                started ? evening.Play() : void();
                return Grab(evening.window);
            };
        }
    }
    return scenes;
}

/// What pictures depend on beside this program: Qt, and how it draws the fonts.
QByteArray Drawing() {
    QByteArray text = QByteArray("Qt ") + qVersion() + '\n';
    const QSet<QString> families{"MS Sans Serif", "Arial", "Comic Sans MS", "Liberation Sans",
                                 "Comic Neue"};
    for (const QString& family : QFontDatabase::families()) {
        if (families.contains(family)) {
            QImage sample(400, 20, QImage::Format_RGB32);
            sample.fill(Qt::white);
            QPainter painter(&sample);
            painter.setFont(QFont(family, 8, QFont::Bold));
            painter.drawText(0, 15, "Trade Agreements: 0123456789");
            const QByteArrayView bytes(sample.constBits(), sample.sizeInBytes());
            const auto hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
            text += family.toLatin1() + ' ' + hash.toHex().first(12) + '\n';
        }
    }
    return text;
}

/// Black, but for what is not as it was.
QImage Difference(const QImage& before, QImage now) {
    QPainter painter(&now);
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    painter.drawImage(0, 0, before);
    return now;
}

const QString Taken = PICTURES;
const QString Left = PICTURES_LEFT;

void ExpectAsTaken(const QString& name, const QImage& picture) {
    const QString left = Left + '/' + name + ".png";
    const QImage now = picture.convertToFormat(QImage::Format_RGB32);
    const QImage before = QImage(Taken + '/' + name + ".png").convertToFormat(now.format());
    if (now.isNull() || now != before) {
        now.save(left, nullptr, 0);
        Difference(before, now).save(Left + '/' + name + "-difference.png");
        ADD_FAILURE() << "does not look as before; see " << left.toStdString();
    }
}

TEST(Pictures, AreAsTheyWereTaken) {
    const QByteArray drawing = Drawing();
    QFile file(Taken + "/drawn-with.txt");
    const QByteArray drawnWith = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (drawing != drawnWith && qEnvironmentVariable("KSM_PICTURES") != "required") {
        GTEST_SKIP() << "The pictures were drawn with\n"
                     << drawnWith.toStdString() << "and here windows are drawn with\n"
                     << drawing.toStdString();
    }
    EXPECT_EQ(drawing, drawnWith);
    QDir(Left).removeRecursively();
    QDir().mkpath(Left);
    QFile drawn(Left + "/drawn-with.txt");
    EXPECT_TRUE(drawn.open(QIODevice::WriteOnly) && drawn.write(drawing) == drawing.size());
    for (const auto& [name, make] : Scenes()) {
        SCOPED_TRACE(name.toStdString());
        ExpectAsTaken(name, make());
    }
}

} // namespace
} // namespace ksm
