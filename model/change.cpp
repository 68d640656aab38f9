#include "model/change.h"

#include "model/player_labels.h"
#include "model/technology.h"

#include <array>
#include <vector>

namespace ksm {

namespace {

struct Law {
    const char* Caption;
    bool LawMarks::* InForce;
};
constexpr std::array<Law, 4> Laws{{{"Labour Union", &LawMarks::LabourUnion},
                                   {"Free Trade", &LawMarks::FreeTrade},
                                   {"Trade Restrictions", &LawMarks::TradeRestrictions},
                                   {"Orlen house rules", &LawMarks::OrlenHouseRules}}};

using Descriptions = std::vector<std::string>;

void NoteIf(bool differs, Descriptions& found, const std::string& what) {
    if (differs) {
        found.push_back(what);
    }
}

void Append(Descriptions& found, const Descriptions& more) {
    found.insert(found.end(), more.begin(), more.end());
}

const char* SelectionName(TradeMode mode) {
    switch (mode) {
    case TradeMode::RemoveFirst:
    case TradeMode::RemovePartner:
        return "Remove";
    case TradeMode::IndependenceFirst:
    case TradeMode::IndependenceSecond:
        return "Economic Independance";
    default:
        return "Add";
    }
}

Descriptions Agreements(const Game& before, const Game& after) {
    Descriptions found;
    for (int maker = 1; maker <= MaxPlayers; ++maker) {
        for (int partner = 1; partner <= MaxPlayers; ++partner) {
            const bool begins = after.Cell(maker, partner) != NoAgreement;
            NoteIf(before.Cell(maker, partner) != after.Cell(maker, partner), found,
                   (begins ? "agreement of " : "end of the agreement of ") +
                       SpokenName(after, maker) + " and " + SpokenName(after, partner));
        }
    }
    return found;
}

// A selection is one thing with all that its clicks lead to.
Descriptions Trade(const Game& before, const Game& after) {
    if (before.Laws.EconomicIndependence != after.Laws.EconomicIndependence ||
        before.IndepFirst != after.IndepFirst || before.IndepSecond != after.IndepSecond) {
        return {{"Economic Independance"}};
    }
    Descriptions agreements = Agreements(before, after);
    // Only its message tells it from the end of the last agreement.
    if (!agreements.empty() && !after.TradeInfo.ends_with("TRADE STOP!")) {
        return agreements;
    }
    Descriptions found;
    if (agreements.empty() && before.TradeMode != after.TradeMode) {
        const bool isOver = after.TradeMode == TradeMode::Idle;
        found.emplace_back(SelectionName(isOver ? before.TradeMode : after.TradeMode));
    } else {
        NoteIf(before.TradeStrokes != after.TradeStrokes || !agreements.empty(), found,
               "Trade Stop");
    }
    return found;
}

auto Modifiers(const Game& game) {
    return std::array{game.GreenModifier, game.BlueModifier, game.YellowModifier, game.RedModifier};
}

bool IsNamedAnew(const PlayerRecord& was, const PlayerRecord& is) {
    return was.Name != is.Name || was.Named != is.Named || was.ShortName != is.ShortName;
}

bool IsColouredAnew(const PlayerRecord& was, const PlayerRecord& is) {
    return was.NameColours != is.NameColours || was.TradeColours != is.TradeColours;
}

} // namespace

bool IsChange(const Game& before, const Game& after) {
    Game same = before;
    for (int slot = 0; slot < OwnerSlots; ++slot) {
        same.Player(slot).Figures = after.Player(slot).Figures;
    }
    same.TradeCount = after.TradeCount;
    same.TurnOrderRows = after.TurnOrderRows;
    same.TradeInfo = after.TradeInfo;
    if (same.TradeMode == TradeMode::Idle && after.TradeMode == TradeMode::Idle) {
        same.TradeFirst = after.TradeFirst;
    }
    return same != after;
}

std::string DescribeChange(const Game& before, const Game& after) {
    Descriptions races;
    Descriptions others;
    Descriptions effects; // what a race brings with it, too
    NoteIf(before.NumPlayers != after.NumPlayers, others,
           std::to_string(after.NumPlayers) + " players");
    for (int player = 1; player <= MaxPlayers; ++player) {
        const PlayerRecord& was = before.Player(player);
        const PlayerRecord& is = after.Player(player);
        const std::string whose = ", " + SpokenName(after, player);
        NoteIf(was.Race != is.Race, races, std::string(TraitsOf(is.Race).Caption) + whose);
        NoteIf(IsNamedAnew(was, is), others, "name" + whose);
        NoteIf(IsColouredAnew(was, is) && !IsNamedAnew(was, is), others, "colour" + whose);
        NoteIf(was.SpaceDocks != is.SpaceDocks, others, "Space Docks" + whose);
        for (const Technology& technology : Technologies) {
            NoteIf(was.*technology.Owned != is.*technology.Owned, effects,
                   technology.Caption + whose);
        }
    }
    for (const auto& [caption, inForce] : Laws) {
        NoteIf(before.Laws.*inForce != after.Laws.*inForce, others, caption);
    }
    Append(others, Trade(before, after));
    NoteIf(Modifiers(before) != Modifiers(after), others, "Tech Modifiers");
    for (std::size_t slot = 0; slot < after.Planets.size(); ++slot) {
        const PlanetRecord& planet = after.Planets[slot];
        NoteIf(before.Planets[slot] != planet, effects,
               planet.Name + " to " + OwnerName(after, planet.Owner));
    }
    Descriptions all = races;
    Append(all, others);
    if (all.size() != 1 || races.empty()) {
        Append(all, effects);
    }
    if (all.size() < 2) {
        return all.empty() ? "change" : all.front();
    }
    return all.front() + " and " + std::to_string(all.size() - 1) + " more";
}

} // namespace ksm
