#include "planets/owner_place.h"

namespace ksm {

int TopOfOwner(int player, int players) {
    return players > 6 ? 150 / players * (player - 1) + 31 : 25 * (player - 1) + 36;
}

} // namespace ksm
