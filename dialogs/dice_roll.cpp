#include "dialogs/dice_roll.h"

namespace ksm {

DicePlaces RollDice(int dice, const std::function<double()>& fraction) {
    DicePlaces places{};
    int placed = 0;
    while (placed < dice) {
        int& place = places.at(static_cast<std::size_t>(fraction() * MaxDice));
        if (place == 0) {
            place = static_cast<int>(fraction() * 10 + 1);
            ++placed;
        }
    }
    return places;
}

} // namespace ksm
