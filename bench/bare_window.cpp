// The yardstick of the script `cost`: as many plain Qt controls as the main window has, of the same
// kinds and at the same places, in Qt's own look. The same clicks and keys write new texts into as
// many labels as change in the main window. No rules, no state.

#include "economy/column_place.h"
#include "model/per_player.h"
#include "planets/owner_place.h"
#include "trade/ring.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QRubberBand>
#include <QScrollBar>
#include <QShortcut>

#include <array>
#include <initializer_list>
#include <vector>

namespace {

using Labels = std::initializer_list<QLabel*>;

const QColor Orange(255, 128, 0);

void Paint(QLabel* label, const QColor& back) {
    QPalette palette = label->palette();
    palette.setColor(QPalette::Window, back);
    label->setPalette(palette);
    label->setAutoFillBackground(true);
}

struct Column {
    QLabel* Name = nullptr;
    QLabel* Race = nullptr;
    QComboBox* RaceBox = nullptr;
    std::array<QLabel*, 9> Figures{}; // resources, influence, planets, credits, docks, four costs
    QScrollBar* Docks = nullptr;
    std::array<QCheckBox*, 3> Boxes{};
    QWidget* Line = nullptr;
};

class BareWindow : public QMainWindow {
public:
    BareWindow() {
        MakeMenu();
        client = new QWidget(this);
        client->setFixedSize(640, 446);
        setCentralWidget(client);
        MakeTable();
        MakeSummary();
        MakeBoard();
        MakeTrade();
        MakeSetup();
        PlaceAll();
        client->setFocus(); // no text box whose caret would blink
        connect(new QShortcut(QKeySequence("F5"), this), &QShortcut::activated, this,
                &BareWindow::OpenDialog);
    }

private:
    template<typename Control>
    Control* Make(const QRect& place, QWidget* parent) {
        auto* control = new Control(parent);
        control->setGeometry(place);
        return control;
    }

    QLabel* MakeLabel(const QString& text, const QRect& place, QWidget* parent) {
        auto* label = Make<QLabel>(place, parent);
        label->setText(text);
        return label;
    }

    void MakeMenu() {
        struct Entry {
            const char* Caption = "";
            QStringList Items;
        };
        const std::array<Entry, 8> bar{
            {{"&File",
              {"New Game", "-", "Load Game", "Save Game", "-", "Load Planet List", "-", "E&xit"}},
             {"&Options", {"Sound", "Orlen house rules"}},
             {"&Notes", {}},
             {"&Dice Roller", {}},
             {"Tech", {"Standard", "Corrin's End", "-", "Tech Modifiers"}},
             {"&Laws", {"Labour Union", "Subsidized Studies"}},
             {"&Trade",
              {"Economic Independance", "Free Trade", "Trade Restrictions", "Trade Stop"}},
             {"&About", {}}}};
        for (const Entry& entry : bar) {
            if (entry.Items.isEmpty()) {
                menuBar()->addAction(entry.Caption);
                continue;
            }
            QMenu* menu = menuBar()->addMenu(entry.Caption);
            for (const QString& item : entry.Items) {
                QAction* action = menu->addAction(item == "-" ? QString() : item);
                action->setSeparator(item == "-");
                if (item == "Labour Union") {
                    action->setCheckable(true);
                    connect(action, &QAction::triggered, this, &BareWindow::Law);
                }
            }
        }
    }

    void MakeTable() {
        for (int row = 0; row < 10; ++row) {
            MakeLabel("Space Docks", {0, 232 + 20 * row, 80, 17}, client);
        }
        for (int player = 1; player <= ksm::MaxPlayers; ++player) {
            columns[player] = MakeColumn();
        }
        QCheckBox* technology = columns[1].Boxes[0];
        connect(technology, &QCheckBox::toggled, this, &BareWindow::Technology);
        connect(columns[1].RaceBox, &QComboBox::activated, this, &BareWindow::Race);
    }

    Column MakeColumn() {
        const std::array costColours{QColor(0, 128, 0), QColor(0, 0, 192), QColor(192, 0, 0),
                                     QColor(192, 192, 0)};
        const std::array tops{225, 241, 257, 273, 295, 376, 392, 408, 424};
        Column column;
        column.Line = Make<QFrame>({0, 200, 1, 240}, client);
        column.Name = MakeLabel("Player", {0, 184, 55, 18}, client);
        Paint(column.Name, Orange);
        column.Race = MakeLabel("Race", {0, 205, 55, 16}, client);
        column.RaceBox = Make<QComboBox>({0, 205, 54, 21}, client);
        column.RaceBox->setEditable(true);
        column.RaceBox->addItems({"Altheran", "Quorvi", "Ith-Veran", "Dravik", "Khorrum", "Orrun"});
        for (std::size_t figure = 0; figure < column.Figures.size(); ++figure) {
            column.Figures[figure] = MakeLabel("0", {0, tops[figure], 25, 17}, client);
            if (figure >= 5) {
                Paint(column.Figures[figure], costColours[figure - 5]);
            }
        }
        column.Docks = Make<QScrollBar>({0, 290, 17, 25}, client);
        for (std::size_t box = 0; box < 3; ++box) {
            column.Boxes[box] =
                Make<QCheckBox>({0, 322 + 14 * static_cast<int>(box), 17, 17}, client);
        }
        return column;
    }

    void MakeSummary() {
        auto* panel = Make<QWidget>({0, 0, 160, 180}, client);
        for (int row = 0; row <= ksm::MaxPlayers; ++row) {
            const int top = 16 * row + 1;
            for (const QRect& place :
                 {QRect(16, top, 65, 17), QRect(88, top, 25, 17), QRect(128, top, 25, 17)}) {
                summary.push_back(MakeLabel("0", place, panel));
            }
        }
    }

    void MakeBoard() {
        auto* panel = Make<QWidget>({163, 0, 172, 180}, client);
        for (int owner = 0; owner < 12; ++owner) {
            owners.push_back(MakeLabel("Player", {0, 1 + 15 * owner, 70, 14}, panel));
            Paint(owners.back(), palette().color(QPalette::Button));
        }
        for (int row = 0; row < 12; ++row) {
            const int top = 5 + 14 * row;
            planets.push_back(MakeLabel("Quessin", {75, top, 40, 14}, panel));
            Paint(MakeLabel("4 2", {139, top, 18, 13}, panel), Qt::white);
        }
        Make<QFrame>({70, 1, 1, 178}, panel);
        Make<QFrame>({0, 30, 70, 1}, panel);
        Make<QFrame>({0, 0, 172, 180}, panel)->setAttribute(Qt::WA_TransparentForMouseEvents);
        Make<QScrollBar>({158, 16, 10, 148}, panel);
        planets.front()->installEventFilter(this);
        outline = new QRubberBand(QRubberBand::Rectangle, this);
    }

    void MakeTrade() {
        trade = Make<QWidget>({338, 0, 300, 180}, client);
        Make<QFrame>({0, 0, 300, 180}, trade)->setAttribute(Qt::WA_TransparentForMouseEvents);
        for (int player = 1; player <= ksm::MaxPlayers; ++player) {
            QLabel* label = MakeLabel("PL", {0, 0, 30, 18}, trade);
            Paint(label, Orange);
            label->installEventFilter(this);
            ring[player] = label;
        }
        tradeNumber = MakeLabel("There are no Trade Agreements in play.", {28, 2, 193, 19}, trade);
        tradeInfo = MakeLabel("Press Add", {220, 112, 73, 57}, trade);
        tradeInfo->setWordWrap(true);
        for (const int top : {16, 48}) {
            auto* button = Make<QPushButton>({230, top, 65, 25}, trade);
            button->setText("Add");
            connect(button, &QPushButton::clicked, this, [this] { Write({tradeInfo}); });
        }
    }

    void MakeSetup() {
        auto* panel = Make<QWidget>({0, 0, 337, 180}, client);
        panel->setAutoFillBackground(true);
        for (const int top : {8, 32, 64, 120}) {
            MakeLabel("Game Setup", {16, top, 96, 17}, panel);
        }
        auto* number = Make<QScrollBar>({112, 32, 17, 25}, panel);
        number->setRange(1, 9);
        number->setValue(5);
        connect(number, &QScrollBar::valueChanged, this, [this](int value) {
            players = 11 - value;
            PlaceAll();
        });
        for (const int top : {48, 64, 80}) {
            Make<QRadioButton>({168, top, 73, 17}, panel)->setText("Normal");
        }
        auto* start = Make<QPushButton>({136, 152, 53, 22}, panel);
        start->setText("START");
        connect(start, &QPushButton::clicked, this, [this, panel] {
            panel->hide();
            for (const Column& column : columns) {
                column.RaceBox->hide();
            }
        });
    }

    void PlaceAll() {
        for (int player = 1; player <= ksm::MaxPlayers; ++player) {
            const bool shown = player <= players;
            if (shown) {
                PlaceColumn(columns[player], ksm::PlaceOfColumn(player, players));
                owners[static_cast<std::size_t>(player) + 1]->move(
                    0, ksm::TopOfOwner(player, players));
                const ksm::Point place = ksm::PlaceInRing(player, players);
                ring[player]->move(place.X, place.Y);
            }
            ShowColumn(columns[player], shown);
            owners[static_cast<std::size_t>(player) + 1]->setVisible(shown);
            ring[player]->setVisible(shown);
            for (std::size_t cell = 0; cell < 3; ++cell) {
                summary[3 * static_cast<std::size_t>(player) + cell]->setVisible(shown);
            }
        }
    }

    static void PlaceColumn(const Column& column, const ksm::ColumnPlace& place) {
        column.Line->move(place.Left, column.Line->y());
        column.Name->setGeometry(place.Left, 184, place.NameWidth, 18);
        column.Race->setGeometry(place.Left, 205, place.NameWidth, 16);
        column.RaceBox->setGeometry(place.Left + 1, 205, place.RaceWidth, 21);
        for (QLabel* figure : column.Figures) {
            figure->move(place.FigureLeft, figure->y());
        }
        column.Docks->move(place.FigureLeft + 19, column.Docks->y());
        for (QCheckBox* box : column.Boxes) {
            box->move(place.FigureLeft + 6, box->y());
        }
    }

    static void ShowColumn(const Column& column, bool shown) {
        for (QWidget* control : std::initializer_list<QWidget*>{
                 column.Line, column.Name, column.Race, column.RaceBox, column.Docks}) {
            control->setVisible(shown);
        }
        for (QLabel* figure : column.Figures) {
            figure->setVisible(shown);
        }
        for (QCheckBox* box : column.Boxes) {
            box->setVisible(shown);
        }
    }

    // What changes in the main window.

    void Write(Labels labels) {
        const QString text = QString::number(++written % 100);
        for (QLabel* label : labels) {
            label->setText(text);
        }
    }

    void Technology() {
        Write({columns[1].Figures[1], summary[5]});
        for (QCheckBox* box : {columns[1].Boxes[1], columns[1].Boxes[2]}) {
            box->setEnabled(!box->isEnabled());
        }
    }

    void Race() {
        const auto& figures = columns[1].Figures;
        Write({columns[1].Race, figures[2], figures[5], figures[6], figures[7], figures[8]});
    }

    void Law() {
        const auto& figures = columns[2].Figures;
        Write({figures[0], figures[1], figures[3], summary[4], summary[5]});
    }

    void Drop() {
        for (const int player : {1, 2}) {
            const auto& figures = columns[player].Figures;
            Write({figures[0], figures[1], figures[2], figures[3]});
        }
        Write({summary[4], summary[5], summary[7], summary[8]});
    }

    void MarkDrag(const QColor& colour) {
        Paint(planets.front(), colour);
        Paint(owners[2 + static_cast<std::size_t>(written / 2 % 2)], colour);
    }

    // Three clicks: the button, and two players. Twelve labels change.
    void ClickPlayer() {
        Write({tradeInfo});
        agreementMade = !agreementMade;
        if (!agreementMade) {
            Write({tradeNumber, columns[1].Figures[3], columns[2].Figures[3]});
            for (const std::size_t row : {1U, 2U}) {
                Write({summary[3 * row], summary[3 * row + 1], summary[3 * row + 2]});
            }
        }
    }

    // As many labels as the standard chart has.
    void OpenDialog() {
        auto* dialog = new QDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setFixedSize(553, 475);
        for (int box = 0; box < 20; ++box) {
            const QRect place(31 + 138 * (box % 4), 14 + 96 * (box / 4), 77, 33);
            Paint(MakeLabel("MICRO\nTECHNOLOGY", place, dialog), Orange);
        }
        MakeLabel("= AND", {51, 451, 40, 17}, dialog);
        dialog->open();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool planet = watched == planets.front();
        if (planet && event->type() == QEvent::MouseButtonPress) {
            return true;
        }
        if (planet && event->type() == QEvent::MouseMove) {
            MarkDrag(Qt::red);
            const QPoint place = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
            outline->setGeometry(QRect(mapFromGlobal(place), planets.front()->size()));
            outline->show();
        } else if (planet && event->type() == QEvent::MouseButtonRelease) {
            outline->hide();
            MarkDrag(palette().color(QPalette::Button));
            Drop();
        } else if (!planet && event->type() == QEvent::MouseButtonRelease) {
            ClickPlayer();
        }
        return QMainWindow::eventFilter(watched, event);
    }

    QWidget* client = nullptr;
    ksm::PerPlayer<Column> columns;
    std::vector<QLabel*> summary;
    std::vector<QLabel*> owners;
    std::vector<QLabel*> planets;
    QRubberBand* outline = nullptr;
    QWidget* trade = nullptr;
    ksm::PerPlayer<QLabel*> ring;
    QLabel* tradeNumber = nullptr;
    QLabel* tradeInfo = nullptr;
    int players = 6;
    int written = 0;
    bool agreementMade = false;
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    BareWindow window;
    window.setWindowTitle("Bare window");
    window.show();
    return QApplication::exec();
}
