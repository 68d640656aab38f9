#include "economy/explanation.h"

#include "economy/bonuses.h"
#include "model/player_labels.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <numeric>

namespace ksm {

namespace {

using Part = Explanation::Part;
using Parts = std::vector<Part>;

struct FigureDesign {
    const char* Caption = "";
    int PlayerFigures::*Value = nullptr;
};

// In the order of the enumeration.
constexpr std::array<FigureDesign, FigureCount> Figures{
    {{"Resources", &PlayerFigures::Resources},
     {"Influence", &PlayerFigures::Influence},
     {"Planets", &PlayerFigures::PlanetCount},
     {"Credits", &PlayerFigures::Credits},
     {"Green cost", &PlayerFigures::GreenTech},
     {"Blue cost", &PlayerFigures::BlueTech},
     {"Red cost", &PlayerFigures::RedTech},
     {"Yellow cost", &PlayerFigures::YellowTech}}};

const FigureDesign& DesignOf(Figure figure) {
    return Figures.at(static_cast<std::size_t>(figure));
}

/// "1 planet", "3 planets".
std::string Count(int number, const std::string& what) {
    return std::to_string(number) + ' ' + what + (number == 1 ? "" : "s");
}

int Sum(const Parts& parts) {
    return std::accumulate(parts.begin(), parts.end(), 0,
                           [](int sum, const Part& part) { return sum + part.Amount; });
}

std::vector<const PlanetRecord*> PlanetsOf(const Game& game, int player) {
    std::vector<const PlanetRecord*> planets;
    for (const PlanetRecord& planet : game.LoadedPlanets()) {
        if (planet.Owner == player) {
            planets.push_back(&planet);
        }
    }
    return planets;
}

// A screen has no room for a line for each of a hundred planets.
Parts Shorten(Parts planets, const char* words = "from planets") {
    constexpr std::size_t MostLines = 12;
    if (planets.size() > MostLines) {
        planets = {{Sum(planets), words}};
    }
    return planets;
}

Parts PlanetParts(const Game& game, int player, std::uint8_t PlanetRecord::*figure) {
    Parts parts;
    for (const PlanetRecord* planet : PlanetsOf(game, player)) {
        if (planet->*figure != 0) {
            parts.push_back({planet->*figure, planet->Name});
        }
    }
    return Shorten(parts);
}

Parts ResourceParts(const Game& game, int player) {
    Parts parts = PlanetParts(game, player, &PlanetRecord::Resources);
    const int planets = game.Player(player).Figures.PlanetCount;
    if (PellamToolsBonus(game, player) != 0 && planets != 0) {
        parts.push_back({planets, "Pellam Tools (" + Count(planets, "planet") + ")"});
    }
    return parts;
}

Parts InfluenceParts(const Game& game, int player) {
    Parts parts = PlanetParts(game, player, &PlanetRecord::Influence);
    const std::array bonuses{
        Part{EnviroCompBonus(game, player), "Enviro Comp. (space docks)"},
        Part{OrrunBonus(game, player), "Orrun (agreements in play)"},
        Part{AltheranBonus(game, player), "Altheran (planets other than Quessin)"},
    };
    std::ranges::copy_if(bonuses, std::back_inserter(parts),
                         [](const Part& bonus) { return bonus.Amount != 0; });
    return parts;
}

Parts CountParts(const Game& game, int player) {
    Parts parts;
    for (const PlanetRecord* planet : PlanetsOf(game, player)) {
        parts.push_back({1, planet->Name});
    }
    return Shorten(parts, "planets (a click on the owner lists them)");
}

Part PartnerPart(const Game& game, int player, int partner) {
    const int own = game.Player(player).Figures.PlanetCount;
    const int theirs = game.Player(partner).Figures.PlanetCount;
    const int brought = game.Laws.TradeRestrictions ? std::min(own, theirs) : theirs;
    std::string words = (brought == 1 ? "planet of " : "planets of ") + SpokenName(game, partner);
    if (game.Laws.TradeRestrictions) {
        words += " (Trade Restrictions: " + std::to_string(brought) + ", the smaller of " +
                 std::to_string(own) + " and " + std::to_string(theirs) + ")";
    }
    return {brought, words};
}

Parts CreditParts(const Game& game, int player) {
    const PartnerSet partners = TradePartners(game, player);
    const int resources = game.Player(player).Figures.PlanetResources;
    Parts parts{{resources, resources == 1 ? "resource" : "resources"}};
    for (int partner = 1; partner <= MaxPlayers; ++partner) {
        if (partners[static_cast<std::size_t>(partner)]) {
            parts.push_back(PartnerPart(game, player, partner));
        }
    }
    if (const int credits = FreeTradeBonus(game, partners)) {
        parts.push_back({credits, "Free Trade (" + Count(credits / 5, "partner") + ")"});
    }
    if (const int credits = MicroTechBonus(game, player, partners)) {
        parts.push_back({credits, "Micro Tech. (" + Count(credits / 3, "partner") + ")"});
    }
    return parts;
}

/// Wherein the costs of the four colours differ.
struct CostDesign {
    Specialty Cheaper = Specialty::None;
    std::uint8_t PlayerRecord::*Base = nullptr;
    std::int16_t Game::*Modifier = nullptr;
};

CostDesign CostOf(Figure figure) {
    switch (figure) {
    case Figure::GreenCost:
        return {Specialty::Green, &PlayerRecord::GreenCost, &Game::GreenModifier};
    case Figure::BlueCost:
        return {Specialty::Blue, &PlayerRecord::BlueCost, &Game::BlueModifier};
    case Figure::RedCost:
        return {Specialty::Red, &PlayerRecord::RedCost, &Game::RedModifier};
    default:
        return {Specialty::None, &PlayerRecord::YellowCost, &Game::YellowModifier};
    }
}

Parts DiscountParts(const Game& game, int player, Specialty cheaper) {
    Parts parts;
    int planets = 0;
    for (const PlanetRecord* planet : PlanetsOf(game, player)) {
        if (planet->Specialty == cheaper) {
            ++planets;
            if (planet->Resources != 0) {
                parts.push_back({-planet->Resources, planet->Name});
            }
        }
    }
    parts = Shorten(parts);
    if (planets != 0 && PellamToolsBonus(game, player) != 0) {
        parts.push_back({-planets, "Pellam Tools (" + Count(planets, "planet") + ")"});
    }
    return parts;
}

Parts CostParts(const Game& game, int player, const CostDesign& cost) {
    const PlayerRecord& record = game.Player(player);
    const int base = record.*cost.Base;
    Parts parts{{base, "base cost"}};
    if (record.Race != Race::None) {
        parts.front().Words += " of ";
        parts.front().Words += TraitsOf(record.Race).Caption;
    }
    if (cost.Cheaper != Specialty::None) {
        const Parts discounts = DiscountParts(game, player, cost.Cheaper);
        parts.insert(parts.end(), discounts.begin(), discounts.end());
        if (const int below = Sum(parts); below < 0) {
            parts.push_back({-below, "(the discount is limited to the base cost)"});
        }
    }
    if (const int modifier = game.*cost.Modifier - NeutralModifier) {
        parts.push_back({modifier, "Tech Modifiers"});
    }
    return parts;
}

/// "before Bert: equal influence, more resources".
std::string TieText(const Game& game, const TurnOrderRow& one, const TurnOrderRow& other,
                    const char* place) {
    std::string text = place + SpokenName(game, other.Player) + ": equal influence";
    if (one.Resources == other.Resources) {
        return text + " and resources, " +
               (one.Player < other.Player ? "lower player number" : "higher player number");
    }
    text += one.Resources > other.Resources ? ", more resources" : ", fewer resources";
    return text + (game.Laws.OrlenHouseRules ? " (Orlen house rules)" : "");
}

} // namespace

int ValueOf(const Game& game, int player, Figure figure) {
    return game.Player(player).Figures.*DesignOf(figure).Value;
}

Explanation Explain(const Game& game, int player, Figure figure) {
    const bool swapped = game.Laws.LabourUnion;
    const std::string law = swapped ? "Labour Union: influence and resources are swapped" : "";
    switch (figure) {
    case Figure::Resources:
        return {swapped ? InfluenceParts(game, player) : ResourceParts(game, player), law};
    case Figure::Influence:
        return {swapped ? ResourceParts(game, player) : InfluenceParts(game, player), law};
    case Figure::Planets:
        return {CountParts(game, player), ""};
    case Figure::Credits:
        return {CreditParts(game, player), law};
    default:
        return {CostParts(game, player, CostOf(figure)), ""};
    }
}

std::string ExplanationText(const Game& game, int player, Figure figure) {
    const Explanation explanation = Explain(game, player, figure);
    const int value = ValueOf(game, player, figure);
    std::string text = DesignOf(figure).Caption;
    text += ' ' + std::to_string(value);
    // Setup can change the number of players without computing the figures again.
    if (Sum(explanation.Parts) != value) {
        return text + ", computed for another number of players";
    }
    std::string sign = " = ";
    for (const Part& part : explanation.Parts) {
        text += part.Amount < 0 && sign != " = " ? "\n- " : sign;
        text += std::to_string(sign == " = " ? part.Amount : std::abs(part.Amount)) + ' ';
        text += part.Words;
        sign = "\n+ ";
    }
    if (!explanation.Law.empty()) {
        text += '\n' + explanation.Law;
    }
    return text;
}

std::string DockText(const Game& game, int player) {
    const PlayerRecord& record = game.Player(player);
    return "Space Docks " + std::to_string(record.SpaceDocks) +
           (record.Enviro ? " count as " : " would count as ") +
           (game.Laws.LabourUnion ? "resources (Labour Union)" : "influence") +
           (record.Enviro ? "" : " with Enviro Comp.");
}

std::string RankText(const Game& game, int place) {
    const auto row = [&](int number) -> const TurnOrderRow& {
        return game.TurnOrderRows.at(static_cast<std::size_t>(number - 1));
    };
    std::string text;
    for (const auto& [neighbour, words] :
         {std::pair{place - 1, "after "}, {place + 1, "before "}}) {
        if (neighbour >= 1 && neighbour <= game.NumPlayers && place <= game.NumPlayers &&
            row(place).Influence == row(neighbour).Influence) {
            text += text.empty() ? "" : "\n";
            text += TieText(game, row(place), row(neighbour), words);
        }
    }
    return text;
}

} // namespace ksm
