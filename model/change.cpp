#include "model/change.h"

#include "model/player_labels.h"
#include "model/technology.h"

#include <algorithm>
#include <vector>

namespace ksm {

namespace {

using Descriptions = std::vector<std::string>;

struct Law {
    const char* Caption;
    bool LawMarks::*InForce;
};
constexpr std::array<Law, 4> Laws{{{"Labour Union", &LawMarks::LabourUnion},
                                   {"Free Trade", &LawMarks::FreeTrade},
                                   {"Trade Restrictions", &LawMarks::TradeRestrictions},
                                   {"Orlen house rules", &LawMarks::OrlenHouseRules}}};

/// Compares the two games topic by topic.
class Comparison {
public:
    Comparison(const Game& earlier, const Game& later) : before(earlier), after(later) {}

    std::string Describe() const {
        const Descriptions races = Races();
        const Descriptions others =
            Join({Setup(), Names(), Docks(), Marks(), Trade(), Modifiers()});
        // A race brings planets and Enviro Comp. with it.
        const bool isRace = races.size() == 1 && others.empty();
        const Descriptions all = isRace ? races : Join({races, others, Boxes(), Owners()});
        if (all.size() < 2) {
            return all.empty() ? "change" : all.front();
        }
        return all.front() + " and " + std::to_string(all.size() - 1) + " more";
    }

private:
    static Descriptions Join(std::initializer_list<Descriptions> topics) {
        Descriptions all;
        for (const Descriptions& topic : topics) {
            all.insert(all.end(), topic.begin(), topic.end());
        }
        return all;
    }

    /// One description for each player for whom `differ` finds a difference.
    template<typename Differ>
    Descriptions ForPlayers(const Differ& differ) const {
        Descriptions found;
        for (int player = 1; player <= MaxPlayers; ++player) {
            const std::string what = differ(before.Player(player), after.Player(player));
            if (!what.empty()) {
                found.push_back(what + ", " + SpokenName(after, player));
            }
        }
        return found;
    }

    Descriptions Setup() const {
        return before.NumPlayers == after.NumPlayers
                   ? Descriptions()
                   : Descriptions{std::to_string(after.NumPlayers) + " players"};
    }

    Descriptions Races() const {
        return ForPlayers([](const PlayerRecord& was, const PlayerRecord& is) {
            return was.Race == is.Race ? std::string() : std::string(TraitsOf(is.Race).Caption);
        });
    }

    Descriptions Names() const {
        return ForPlayers([](const PlayerRecord& was, const PlayerRecord& is) -> std::string {
            if (was.Name != is.Name || was.Named != is.Named || was.ShortName != is.ShortName) {
                return "name";
            }
            const bool coloured =
                was.NameColours != is.NameColours || was.TradeColours != is.TradeColours;
            return coloured ? "colour" : "";
        });
    }

    Descriptions Docks() const {
        return ForPlayers([](const PlayerRecord& was, const PlayerRecord& is) -> std::string {
            return was.SpaceDocks == is.SpaceDocks ? "" : "Space Docks";
        });
    }

    Descriptions Boxes() const {
        Descriptions found;
        for (const Technology& technology : Technologies) {
            const Descriptions ticked =
                ForPlayers([&](const PlayerRecord& was, const PlayerRecord& is) -> std::string {
                    return was.*technology.Owned == is.*technology.Owned ? "" : technology.Caption;
                });
            found.insert(found.end(), ticked.begin(), ticked.end());
        }
        return found;
    }

    Descriptions Owners() const {
        Descriptions found;
        for (std::size_t planet = 0; planet < before.Planets.size(); ++planet) {
            const PlanetRecord& is = after.Planets[planet];
            if (before.Planets[planet] != is) {
                found.push_back(is.Name + " to " + OwnerName(after, is.Owner));
            }
        }
        return found;
    }

    Descriptions Marks() const {
        Descriptions found;
        for (const auto& [caption, inForce] : Laws) {
            if (before.Laws.*inForce != after.Laws.*inForce) {
                found.emplace_back(caption);
            }
        }
        return found;
    }

    // A selection is one thing with all that its clicks lead to.
    Descriptions Trade() const {
        const bool independence =
            before.Laws.EconomicIndependence != after.Laws.EconomicIndependence ||
            before.IndepFirst != after.IndepFirst || before.IndepSecond != after.IndepSecond;
        if (independence) {
            return {"Economic Independance"};
        }
        const Descriptions agreements = Agreements();
        if (!agreements.empty()) {
            // Only its message tells it from the end of the last agreement.
            return after.TradeInfo.ends_with("TRADE STOP!") ? Descriptions{"Trade Stop"}
                                                            : agreements;
        }
        if (before.TradeMode != after.TradeMode) {
            return {SelectionName(after.TradeMode == TradeMode::Idle ? before.TradeMode
                                                                     : after.TradeMode)};
        }
        return before.TradeStrokes == after.TradeStrokes ? Descriptions()
                                                         : Descriptions{"Trade Stop"};
    }

    static const char* SelectionName(TradeMode mode) {
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

    Descriptions Agreements() const {
        Descriptions found;
        for (int maker = 1; maker <= MaxPlayers; ++maker) {
            for (int partner = 1; partner <= MaxPlayers; ++partner) {
                if (before.Cell(maker, partner) != after.Cell(maker, partner)) {
                    const bool begins = after.Cell(maker, partner) != NoAgreement;
                    found.push_back((begins ? "agreement of " : "end of the agreement of ") +
                                    SpokenName(after, maker) + " and " +
                                    SpokenName(after, partner));
                }
            }
        }
        return found;
    }

    Descriptions Modifiers() const {
        const auto modifiers = [](const Game& game) {
            return std::array{game.GreenModifier, game.BlueModifier, game.YellowModifier,
                              game.RedModifier};
        };
        return modifiers(before) == modifiers(after) ? Descriptions()
                                                     : Descriptions{"Tech Modifiers"};
    }

    const Game& before;
    const Game& after;
};

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
    return Comparison(before, after).Describe();
}

} // namespace ksm
