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
    int PlayerFigures::* Value = nullptr;
    // Of the costs.
    Specialty Cheaper = Specialty::None;
    std::uint8_t PlayerRecord::* Base = nullptr;
    std::int16_t Game::* Modifier = nullptr;
};

// In the order of the enumeration.
constexpr std::array<FigureDesign, FigureCount> Figures{
    {{"Resources", &PlayerFigures::Resources},
     {"Influence", &PlayerFigures::Influence},
     {"Planets", &PlayerFigures::PlanetCount},
     {"Credits", &PlayerFigures::Credits},
     {"Green cost", &PlayerFigures::GreenTech, Specialty::Green, &PlayerRecord::GreenCost,
      &Game::GreenModifier},
     {"Blue cost", &PlayerFigures::BlueTech, Specialty::Blue, &PlayerRecord::BlueCost,
      &Game::BlueModifier},
     {"Red cost", &PlayerFigures::RedTech, Specialty::Red, &PlayerRecord::RedCost,
      &Game::RedModifier},
     {"Yellow cost", &PlayerFigures::YellowTech, Specialty::None, &PlayerRecord::YellowCost,
      &Game::YellowModifier}}};

const FigureDesign& DesignOf(Figure figure) { return Figures.at(static_cast<std::size_t>(figure)); }

/// " (1 planet)", " (3 planets)".
std::string Count(int number, const std::string& what) {
    return " (" + std::to_string(number) + ' ' + what + (number == 1 ? ")" : "s)");
}

int Sum(const Parts& parts) {
    return std::accumulate(parts.begin(), parts.end(), 0,
                           [](int sum, const Part& part) { return sum + part.Amount; });
}

/// A part of nothing is left out.
void Add(Parts& parts, int amount, const std::string& words) {
    if (amount != 0) {
        parts.push_back({amount, words});
    }
}

/// One part for each planet of the player. A screen has no room for a hundred of them.
template<typename AmountOf>
Parts PlanetParts(const Game& game, int player, const AmountOf& amountOf,
                  const char* inShort = "from planets") {
    Parts parts;
    for (const PlanetRecord& planet : game.LoadedPlanets()) {
        if (planet.Owner == player) {
            Add(parts, amountOf(planet), planet.Name);
        }
    }
    constexpr std::size_t MostLines = 12;
    return parts.size() > MostLines ? Parts{{Sum(parts), inShort}} : parts;
}

/// What Pellam Tools make of that many planets.
void AddPellamTools(Parts& parts, const Game& game, int player, int planets, int each) {
    Add(parts, PellamToolsBonus(game, player) * planets * each,
        "Pellam Tools" + Count(planets, "planet"));
}

Parts ResourceParts(const Game& game, int player) {
    Parts parts = PlanetParts(game, player, [](const PlanetRecord& p) { return p.Resources; });
    AddPellamTools(parts, game, player, game.Player(player).Figures.PlanetCount, 1);
    return parts;
}

Parts InfluenceParts(const Game& game, int player) {
    Parts parts = PlanetParts(game, player, [](const PlanetRecord& p) { return p.Influence; });
    Add(parts, EnviroCompBonus(game, player), "Enviro Comp. (space docks)");
    Add(parts, OrrunBonus(game, player), "Orrun (agreements in play)");
    Add(parts, AltheranBonus(game, player), "Altheran (planets other than Quessin)");
    return parts;
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
    const int freeTrade = FreeTradeBonus(game, partners);
    const int microTech = MicroTechBonus(game, player, partners);
    Add(parts, freeTrade, "Free Trade" + Count(freeTrade / 5, "partner"));
    Add(parts, microTech, "Micro Tech." + Count(microTech / 3, "partner"));
    return parts;
}

Parts CostParts(const Game& game, int player, const FigureDesign& cost) {
    const PlayerRecord& record = game.Player(player);
    Parts parts{{record.*cost.Base, "base cost"}};
    if (record.Race != Race::None) {
        parts.front().Words += " of " + std::string(TraitsOf(record.Race).Caption);
    }
    if (cost.Cheaper != Specialty::None) {
        int planets = 0;
        const Parts discounts = PlanetParts(game, player, [&](const PlanetRecord& planet) {
            planets += planet.Specialty == cost.Cheaper ? 1 : 0;
            return planet.Specialty == cost.Cheaper ? -planet.Resources : 0;
        });
        parts.insert(parts.end(), discounts.begin(), discounts.end());
        AddPellamTools(parts, game, player, planets, -1);
        Add(parts, std::max(-Sum(parts), 0), "(the discount is limited to the base cost)");
    }
    Add(parts, game.*cost.Modifier - NeutralModifier, "Tech Modifiers");
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
    case Figure::Influence: {
        const bool ofResources = (figure == Figure::Resources) != swapped;
        return {ofResources ? ResourceParts(game, player) : InfluenceParts(game, player), law};
    }
    case Figure::Planets:
        return {PlanetParts(
                    game, player, [](const PlanetRecord&) { return 1; },
                    "planets (a click on the owner lists them)"),
                ""};
    case Figure::Credits:
        return {CreditParts(game, player), law};
    default:
        return {CostParts(game, player, DesignOf(figure)), ""};
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
