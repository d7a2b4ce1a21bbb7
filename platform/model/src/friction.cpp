#include "varo/model/friction.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace Varo::Model {

namespace {

struct MaterialPair {
    std::string_view first;
    std::string_view second;
    float coefficient;
};

// Static friction of dry, clean surfaces, from tables that many books reprint:
//   A  E. A. Avallone et al., Marks' Standard Handbook for Mechanical Engineers, 11th ed., table 3.2.1
//   C  D. R. Lide (ed.), CRC Handbook of Chemistry and Physics, coefficients of friction
//   G  D. C. Giancoli, Physics for Scientists and Engineers, 4th ed., table 5-1
//   S  R. A. Serway, J. W. Jewett, Physics for Scientists and Engineers, 9th ed., table 5.1
// Where a source gives a range, the middle of it; of the 1 to 4 for rubber on solids, the lower end. "gum" is soft
// rubber and has the values of rubber.
constexpr std::array<MaterialPair, 35> pairs = {{
    {"steel", "steel", 0.74F},  // A, S
    {"aluminium", "steel", 0.61F},  // A, S
    {"copper", "steel", 0.53F},  // A, S
    {"brass", "steel", 0.51F},  // A
    {"aluminium", "aluminium", 1.05F},  // A
    {"cast iron", "cast iron", 1.10F},  // A
    {"cast iron", "copper", 1.05F},  // A
    {"nickel", "nickel", 1.10F},  // A
    {"glass", "glass", 0.94F},  // A, S
    {"glass", "nickel", 0.78F},  // A
    {"copper", "glass", 0.68F},  // A
    {"wood", "wood", 0.4F},  // G
    {"leather", "wood", 0.61F},  // A
    {"cast iron", "leather", 0.6F},  // C
    {"leather", "steel", 0.6F},  // C
    {"aluminium", "leather", 0.6F},  // C
    {"teflon", "teflon", 0.04F},  // A, G, S
    {"steel", "teflon", 0.04F},  // A, G
    {"nylon", "nylon", 0.2F},  // C
    {"plexiglass", "plexiglass", 0.8F},  // C
    {"plexiglass", "steel", 0.45F},  // C
    {"polystyrene", "polystyrene", 0.5F},  // C
    {"polystyrene", "steel", 0.325F},  // C
    {"concrete", "rubber", 1.0F},  // G, S
    {"concrete", "gum", 1.0F},
    {"rubber", "steel", 1.0F},  // C, G
    {"gum", "steel", 1.0F},
    {"aluminium", "rubber", 1.0F},  // C, G
    {"aluminium", "gum", 1.0F},
    {"rubber", "wood", 1.0F},  // C, G
    {"gum", "wood", 1.0F},
    {"glass", "rubber", 1.0F},  // C, G
    {"glass", "gum", 1.0F},
    {"rubber", "rubber", 1.0F},  // C, G
    {"gum", "gum", 1.0F},
}};

}  // namespace

bool getCoefFriction(std::string const& material1, std::string const& material2, float& coefficient)
{
    for (MaterialPair const& pair : pairs) {
        if ((pair.first == material1 && pair.second == material2) ||
            (pair.first == material2 && pair.second == material1)) {
            coefficient = pair.coefficient;
            return true;
        }
    }
    return false;
}

bool isFrictionMaterial(std::string const& material)
{
    return std::any_of(pairs.begin(), pairs.end(),
                       [&](MaterialPair const& pair) { return pair.first == material || pair.second == material; });
}

}  // namespace Varo::Model
