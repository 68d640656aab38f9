// Evenings that are told in a text: what somebody does, and what is then seen, or said by a screen
// reader, that was not so before. Lines that begin with ">" do something; "#" is for the reader.

#include "controls/accessible_names.h"
#include "saves/kept_game.h"
#include "tests/game_window.h"
#include "tests/saves/saves_folder.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAction>
#include <QClipboard>
#include <QMimeData>

#include <algorithm>
#include <functional>
#include <map>

namespace ksm {
namespace {

/// Of each control what there is to tell about it.
using Facets = std::map<QString, QString>;
using Seen = std::map<QString, Facets>;

QString Colours(const QWidget& control) {
    const auto colour = [&](QPalette::ColorRole role) {
        const QColor own = control.palette().color(role);
        return own == QApplication::palette().color(role) ? "as usual" : own.name();
    };
    const QString text = colour(QPalette::WindowText) + " on " + colour(QPalette::Window);
    return text == "as usual on as usual" ? QString() : text;
}

/// In its window, of a window from the main one, and of that from the middle of the screen; with
/// its size, where no font or style decides on that.
QString PlaceOf(const QWidget& control, const Korvane& game) {
    const QWidget* window = control.window();
    const QWidget* origin = window == &game ? game.centralWidget() : window;
    const QPoint place =
        &control == &game    ? game.geometry().center() - game.screen()->geometry().center()
        : control.isWindow() ? control.pos() - game.pos()
                             : control.mapToGlobal(QPoint()) - origin->mapToGlobal(QPoint());
    const QString at = QString("%1,%2").arg(place.x()).arg(place.y());
    const QStringList fitted{"", "InvasionPlanet", "InvasionResInf", "DragOutline"};
    const bool isFitted =
        control.isWindow() || fitted.contains(control.objectName().section('(', 0, 0));
    return isFitted ? at : at + QString(" %1x%2").arg(control.width()).arg(control.height());
}

/// "3 of 2 to 10"
QString ValueOf(const QAccessibleValueInterface& bar) {
    return bar.currentValue().toString() + " of " + bar.minimumValue().toString() + " to " +
           bar.maximumValue().toString();
}

Facets FacetsOf(QWidget& control, const GameWindow& game) {
    auto* said = QAccessible::queryAccessibleInterface(&control);
    const auto* value = said->valueInterface();
    const bool isFramed = control.isWindow() && control.windowType() != Qt::Popup;
    const QIcon icon = isFramed ? control.windowIcon() : QIcon();
    const QString name = said->text(QAccessible::Name);
    const QString says = said->text(QAccessible::Description);
    const QString text = said->text(QAccessible::Value); // of a list its name, by some a Qt
    return {{"at", PlaceOf(control, game.window)},
            {"title", control.windowTitle()},
            {"flags", isFramed ? QString::number(control.windowFlags(), 16) : ""},
            {"icon",
             icon.isNull() ? "" : icon.pixmap(16).toImage().pixelColor(8, 8).name(QColor::HexArgb)},
            {"is", QVariant::fromValue(said->role()).toString()},
            {"name", name},
            {"says", says},
            {"tip", control.toolTip() == says ? QString() : control.toolTip()},
            {"value", value          ? ValueOf(*value)
                      : text == name ? ""
                                     : text},
            {"colours", Colours(control)},
            {"greyed", control.isEnabled() ? "" : "yes"},
            {"checked", said->state().checked ? "yes" : ""},
            {"modal", control.isModal() ? "yes" : ""}};
}

Seen See(const GameWindow& game) {
    const QWidget* focused = QApplication::focusWidget();
    const QString focus = focused ? focused->objectName() : QString();
    Seen seen{{"The focus", {{"is on", focus.isEmpty() ? "nothing" : focus}}},
              {"The folder", {{"has", QDir().entryList(QDir::Files | QDir::Hidden).join(", ")}}}};
    for (QWidget* control : QApplication::allWidgets()) {
        const auto* said = QAccessible::queryAccessibleInterface(control);
        const QString own = control->objectName();
        const QString name = own.isEmpty() ? said->text(QAccessible::Name) : own;
        const QWidget* window = control->window();
        const QString place =
            window == control || window == &game.window ? QString() : window->objectName() + ' ';
        if (control->isVisible() && !name.isEmpty() && !name.startsWith("qt_") && place != " ") {
            seen[place + name] = FacetsOf(*control, game);
        }
    }
    for (const QAction* item : game.window.findChildren<QAction*>()) {
        const QString name = item->objectName(); // none where it says what can be taken back
        seen["In the menu " + (name.isEmpty() ? item->text().replace('\t', ' ') : name)] = {
            {"is", name.isEmpty() ? QString() : item->text()},
            {"checked", item->isChecked() ? "yes" : ""},
            {"greyed", item->isEnabled() ? "" : "yes"}};
    }
    return seen;
}

/// A line for each control that is not as it was last seen, and which ones came back or went.
QStringList New(Seen& known, const Seen& before, const Seen& now) {
    QStringList lines, back, gone;
    for (const auto& [control, facets] : now) {
        QString line;
        Facets& old = known[control];
        for (const auto& [facet, text] : facets) {
            if (text != std::exchange(old[facet], text)) {
                line += " | " + facet + ' ' + (text.isEmpty() ? "no more" : text);
            }
        }
        if (!line.isEmpty()) {
            lines << QString(control + line).replace('\n', " / ");
        } else if (!before.contains(control)) {
            back << control;
        }
    }
    for (const auto& [control, facets] : before) {
        now.contains(control) ? void() : gone.append(control);
    }
    back.isEmpty() ? void() : lines.append("back: " + back.join(", "));
    gone.isEmpty() ? void() : lines.append("gone: " + gone.join(", "));
    return lines;
}

/// Does what a line says: a verb, the name of a control, and what it needs beside.
void Do(GameWindow& game, const QString& deed) {
    SCOPED_TRACE(deed.toStdString());
    const QString verb = deed.section(' ', 0, 0);
    const QByteArray name = deed.section(' ', 1, 1).toLatin1();
    const QString with = deed.section(' ', 2);
    const auto control = [&] { return game.Find<QWidget>(name); };
    const auto reader = [&] { return QAccessible::queryAccessibleInterface(control()); };
    const std::map<QString, std::function<void()>> verbs{
        {"click", [&] { game.Click(name); }},
        {"rightclick", [&] { game.Click(control(), Qt::RightButton); }},
        {"choose", [&] { game.Choose(name); }},
        {"move", [&] { game.Move(name, with.toInt()); }},
        {"shift", [&] { game.window.move(game.window.pos() + QPoint(name.toInt(), 0)); }},
        {"players", [&] { game.SetPlayers(name.toInt()); }},
        {"take",
         [&] {
             auto* list = game.Find<QComboBox>(name);
             emit list->activated(list->findText(with));
         }},
        {"focus", [&] { game.Activate(control()->window()), control()->setFocus(); }},
        {"key",
         [&] {
             const QKeyCombination key = QKeySequence(name)[0];
             game.Key(key.key(), key.keyboardModifiers());
         }},
        {"type", [&] { QTest::keyClicks(QApplication::focusWidget(), deed.section(' ', 1)); }},
        {"paste",
         [&] {
             const QString text = deed.section(' ', 1);
             QClipboard* clipboard = QGuiApplication::clipboard();
             text.isEmpty() ? clipboard->setMimeData(new QMimeData) : clipboard->setText(text);
             game.Key(Qt::Key_V, Qt::ControlModifier);
         }},
        {"wheel", [&] { Turn(control(), with.toInt()); }},
        {"press", [&] { game.Press(name.toInt()); }},
        {"over", [&] { game.MoveOver(control()); }},
        {"drop", [&] { game.DropOn(control()); }},
        // As a screen reader does it.
        {"do", [&] { reader()->actionInterface()->doAction(with); }},
        {"set", [&] { reader()->valueInterface()->setCurrentValue(with.toInt()); }},
        {"close", [&] { game.Close(name); }}};
    ASSERT_TRUE(verbs.contains(verb));
    verbs.at(verb)();
    DeleteClosed();
    // As a window manager does.
    QWidget* modal = QApplication::activeModalWidget();
    if (modal || (!QApplication::activeWindow() && game.window.isVisible())) {
        game.Activate(modal ? modal : &game.window);
    }
}

/// The lines of a text, with what comes of the deeds as it is now.
QStringList Told(const QStringList& lines) {
    const GameState start = GameOfTwentyPlanets();
    KeptGame kept(start);
    GameWindow game(start, &kept);
    game.Activate();
    MessageBoxes boxes;
    Seen before = See(game);
    Seen known = before;
    QStringList told;
    for (const QString& line : lines) {
        if (line.startsWith('#') || line.isEmpty()) {
            told << line;
        } else if (line == "> look") {
            told << line << New(known = {}, before, before);
        } else if (line.startsWith('>')) {
            Do(game, line.mid(2));
            for (QWidget* window : QApplication::topLevelWidgets()) {
                const auto isPainted = [&] { return OnScreen(*window) == Picture(*window); };
                EXPECT_TRUE(window->isHidden() || QTest::qWaitFor(isPainted))
                    << "something was not painted anew: " << line.toStdString();
            }
            const Seen now = See(game);
            told << line << New(known, std::exchange(before, now), now);
            for (QString& text : std::exchange(boxes.Said, {})) {
                told << "box: " + text.replace(QDir::currentPath(), "~");
            }
        }
    }
    return told;
}

class Evenings : public SavesFolder {
protected:
    static void ExpectAsTold(const QString& name) {
        InstallAccessibleNames();
        QFile file(QString(EVENINGS "/%1.txt").arg(name));
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        const QStringList lines = QString(file.readAll()).split('\n');
        const QStringList told = Told(lines);
        const auto [was, is] = std::ranges::mismatch(lines, told);
        if (lines != told) {
            QDir().mkpath(EVENINGS_LEFT);
            QFile left(QString(EVENINGS_LEFT "/%1.txt").arg(name));
            EXPECT_TRUE(left.open(QFile::WriteOnly) && left.write(told.join('\n').toUtf8()) > 0);
            ADD_FAILURE() << left.fileName().toStdString() << ", line " << is - told.begin() + 1
                          << ": " << (is == told.end() ? "" : is->toStdString());
        }
    }
};

TEST_F(Evenings, Setup) { ExpectAsTold("setup"); }
TEST_F(Evenings, Play) { ExpectAsTold("play"); }
TEST_F(Evenings, Planets) { ExpectAsTold("planets"); }
TEST_F(Evenings, Ten) { ExpectAsTold("ten"); }
TEST_F(Evenings, Windows) { ExpectAsTold("windows"); }

} // namespace
} // namespace ksm
