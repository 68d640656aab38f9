// Every window to the pixel. A picture in pictures/ is one that somebody looked at and found right.

#include "controls/message_box.h"
#include "controls/program_icon.h"
#include "dialogs/dice_form.h"
#include "tests/game_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDir>
#include <QFontDatabase>
#include <QMenu>
#include <QPainter>

namespace ksm {
namespace {

/// An evening in which as much as possible of what a window can show is there.
struct Evening : GameWindow {
    explicit Evening(int players) : GameWindow(DeliveredGame()) {
        Find<QScrollBar>("PlayNumScroll")->setValue(11 - players);
        for (int player = 1; player <= players; ++player) {
            emit Find<QComboBox>("Race", player)->activated((players + player) % RaceCount);
            SetName(player);
        }
        for (const char* technology : {"Enviro", "PellamTools", "Micro"}) {
            Find<QCheckBox>(technology, 2)->setChecked(true);
        }
        Find<QScrollBar>("DockScroll", 2)->setValue(0);
    }

    static GameState DeliveredGame() {
        GameState game;
        TakePlanets(game, ReadPlanetListFile(DELIVERED_PLANET_LIST).Planets);
        return game;
    }
    void SetName(int player) const {
        constexpr std::array names{
            "Ada", "<b>Bo</b>", "Cleo & Co", "Dora", "Emil", "Fay the Unforgettable of Arden",
            "Gus", "Hilde",     "Ivo",       "Jana"};
        Click("PlayerName", player);
        Find<QLineEdit>("NameEntry")->setText(names.at(static_cast<std::size_t>(player - 1)));
        Click("NameColor", player + 2);
        Click("ColorOK");
        DeleteClosed();
    }
    void Agree(int one, int other) const {
        Click("AddTAbutton");
        Click("TradePlayer", one);
        Click("TradePlayer", other);
    }
    void Play() {
        const int players = state.NumPlayers;
        Start();
        Find<QScrollBar>("PlanetScroller")->setValue(14);
        for (int row = 0; row < 12; ++row) {
            Drag(row, 1 + row % players);
        }
        for (int player = 1; player <= players; ++player) {
            Agree(player, 1 + player % players);
            Agree(player, 1 + (player + 3) % players);
        }
        Choose("TFree");
        Choose("Tres");
        Click("TradePlayer", 2);
        Click("TradePlayer", players);
        Click("InvasionPlayer", 1);
        Click("AddTAbutton");
        Click("TradePlayer", std::min(players, 6));
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
    int top = 0;
    for (const QImage& part : parts) {
        painter.drawImage(0, top, part);
        top += part.height();
    }
    return column;
}

template<int Players>
QImage Setup() {
    Evening evening(Players);
    return Grab(evening.window);
}

template<int Players>
QImage Play() {
    Evening evening(Players);
    evening.Play();
    return Grab(evening.window);
}

QImage Start() {
    GameWindow untouched;
    return Grab(untouched.window);
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

QImage Menus() {
    Evening evening(2);
    evening.Play();
    QList<QImage> menus;
    for (const char* name : {"File", "MenuOptions", "Techs", "MenuLaws", "Trad"}) {
        auto* menu = evening.Find<QMenu>(name);
        menu->ensurePolished();
        menu->resize(menu->sizeHint());
        menus << Grab(*menu);
    }
    return Column(menus);
}

QImage DragInMidAir() {
    Evening evening(6);
    evening.Start();
    evening.Press(3);
    evening.MoveOver(3, evening.Owner(5));
    return Grab(evening.window, QRect(0, 0, 340, 220));
}

QImage FocusRings() {
    Evening evening(3);
    evening.Activate();
    QList<QImage> controls;
    const auto focus = [&](std::initializer_list<const char*> names) {
        for (const char* name : names) {
            auto* control = evening.Find<QWidget>(name);
            control->setFocus(Qt::TabFocusReason);
            const QRect place(control->mapTo(&evening.window, QPoint()), control->size());
            controls << Grab(evening.window, place.adjusted(-4, -4, 4, 4));
        }
    };
    focus({"PlayNumScroll", "OptionNormal", "StartGameButton", "Race(1)"});
    evening.Start();
    focus({"PlayerName(1)", "PlayerName(3)", "DockScroll(1)", "Enviro(2)", "AddTAbutton",
           "TradePlayer(3)", "InvasionPlayer(20)", "InvasionPlanet(0)", "PlanetScroller"});
    return Column(controls);
}

QImage NameDialog() {
    Evening evening(2);
    evening.Click("PlayerName", 2);
    return Grab(*evening.Find<QWidget>("ColorSelectForm"));
}

QImage Dice() {
    QWidget owner;
    DiceForm form(&owner, [] { return 10U; });
    QImage untouched = Grab(form);
    form.findChild<QScrollBar*>("Scroll")->setValue(0);
    form.findChild<QPushButton*>("Command1")->click();
    QImage full = Grab(form);
    form.findChild<QScrollBar*>("Scroll")->setValue(4);
    form.findChild<QPushButton*>("Command1")->click();
    return Column({untouched, full, Grab(form)});
}

QImage Modifiers() {
    Evening evening(2);
    evening.Choose("MenuTechMod");
    for (const auto& [bar, position] : {std::pair{0, 0}, std::pair{1, 16}, std::pair{3, 30}}) {
        evening.Find<QScrollBar>("VScroll1", bar)->setValue(position);
    }
    return Grab(*evening.Find<QWidget>("TechModForm"));
}

QImage Message() {
    const MessageBoxes boxes;
    ShowMessage(QMessageBox::Critical, "Title", "As <b>typed</b> & no other",
                "A <i>reason</i> of two lines\nthat helps");
    return boxes.Seen;
}

template<int Size>
QImage Icon() {
    return ProgramIcon().pixmap(QSize(Size, Size), 1.0).toImage();
}

/// Opens a window from the menu, in a folder with a few games.
QImage Opened(const char* item, const char* form) {
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    for (const char* name : {"friday.ksm", "a long evening with everybody.ksm", ".ksm", "B.ksm",
                             "saturday.ksm", "C.KSM"}) {
        QFile(name).open(QIODevice::WriteOnly);
    }
    Evening evening(2);
    evening.state.NotesText = "Ada owes Bo 5.\n\tOne\tTwo";
    evening.Choose(item);
    QDir::setCurrent(before);
    return Grab(*evening.Find<QWidget>(form));
}

struct Scene {
    const char* Name;
    QImage (*Make)();
};

constexpr Scene Scenes[]{
    {"start", Start},
    {"setup-2", Setup<2>},
    {"setup-10", Setup<10>},
    {"play-2", Play<2>},
    {"play-6", Play<6>},
    {"play-10", Play<10>},
    {"scaled", Scaled},
    {"menus", Menus},
    {"drag", DragInMidAir},
    {"focus", FocusRings},
    {"name", NameDialog},
    {"dice", Dice},
    {"modifiers", Modifiers},
    {"message", Message},
    {"icon",
     [] {
         return Column({Icon<16>(), Icon<32>(), Icon<48>()});
     }},
    {"notes", [] { return Opened("Notes", "NoteForm"); }},
    {"save", [] { return Opened("SGame", "SaveForm"); }},
    {"load", [] { return Opened("LGame", "LoadForm"); }},
    {"chart", [] { return Opened("Stech", "TechForm"); }},
    {"expansion", [] { return Opened("HTech", "TechForm2"); }},
    {"about", [] { return Opened("About", "AboutForm"); }},
};

/// What pictures depend on beside this program: Qt, and how it draws the fonts.
QByteArray Drawing() {
    QByteArray text = QByteArray("Qt ") + qVersion() + '\n';
    for (const char* family : {"MS Sans Serif", "Arial", "Arial Narrow", "Comic Sans MS",
                               "Liberation Sans", "Liberation Sans Narrow", "Comic Neue"}) {
        if (!QFontDatabase::families().contains(family)) {
            continue;
        }
        QImage sample(400, 60, QImage::Format_RGB32);
        sample.fill(Qt::white);
        QPainter painter(&sample);
        for (const auto weight : {QFont::Normal, QFont::Bold}) {
            QFont font(family, -1, weight);
            font.setPixelSize(SmallText);
            painter.setFont(font);
            painter.drawText(0, weight == QFont::Bold ? 40 : 20, "Trade Agreements: 0123456789");
        }
        const QByteArrayView bytes(sample.constBits(), sample.sizeInBytes());
        text += QByteArray(family) + ' ' +
                QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex().first(12) + '\n';
    }
    return text;
}

/// The new picture, pale, with everything in red that is not as it was.
QImage Difference(const QImage& before, const QImage& now) {
    QImage difference = now;
    for (int y = 0; y < now.height(); ++y) {
        for (int x = 0; x < now.width(); ++x) {
            const bool same = before.valid(x, y) && before.pixel(x, y) == now.pixel(x, y);
            difference.setPixelColor(x, y, same ? now.pixelColor(x, y).lighter(130) : Qt::red);
        }
    }
    return difference;
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

const QString Taken = PICTURES;
const QString Left = PICTURES_LEFT;

void ExpectAsTaken(const Scene& scene) {
    const QString file = QString("/%1.png").arg(scene.Name);
    const QString difference = QString("%1/%2-difference.png").arg(Left, scene.Name);
    const QImage now = scene.Make().convertToFormat(QImage::Format_RGB32);
    const QImage before = QImage(Taken + file).convertToFormat(QImage::Format_RGB32);
    QFile::remove(Left + file);
    QFile::remove(difference);
    if (now != before) {
        now.save(Left + file, nullptr, 0);
        Difference(before, now).save(difference);
        ADD_FAILURE() << "does not look as before; see " << (Left + file).toStdString() << " and "
                      << difference.toStdString();
    }
}

TEST(Pictures, AreAsTheyWereTaken) {
    const QByteArray drawing = Drawing();
    QFile file(Taken + "/drawn-with.txt");
    const QByteArray drawnWith = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (drawing != drawnWith) {
        const std::string message = "The pictures were drawn with\n" + drawnWith.toStdString() +
                                    "and here windows are drawn with\n" + drawing.toStdString();
        if (qEnvironmentVariable("KSM_PICTURES") != "required") {
            GTEST_SKIP() << message;
        }
        ADD_FAILURE() << message;
    }
    QDir().mkpath(Left);
    Write(Left + "/drawn-with.txt", drawing);
    for (const Scene& scene : Scenes) {
        SCOPED_TRACE(scene.Name);
        ExpectAsTaken(scene);
    }
}

} // namespace
} // namespace ksm
