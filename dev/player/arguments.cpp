#include "player/arguments.h"

#include "player/values.h"

namespace coinlet::player {

double Arguments::Number(std::size_t i) const {
    return ReadNumber(Text(i));
}

int Arguments::Whole(std::size_t i) const {
    return ReadWhole(Text(i));
}

double Arguments::Colour(std::size_t i) const {
    return ReadColour(Text(i));
}

}  // namespace coinlet::player
