#include "varo/model/friction.hpp"

#include <array>
#include <string_view>

namespace Varo::Model {

namespace {

struct MaterialPair {
    std::string_view first;
    std::string_view second;
    float coefficient;
};

// Static friction of dry, clean surfaces. Values from tables that textbooks reprint: [A] E. A. Avallone et al., Marks'
// Standard Handbook for Mechanical Engineers, 11th ed., section 3.2; [S] R. A. Serway, J. W. Jewett, Physics for
// Scientists and Engineers, 9th ed., table 5.1; [G] D. C. Giancoli, Physics for Scientists and Engineers, 4th ed.,
// table 5-1. "gum" is soft rubber and shares the values of rubber.
constexpr std::array<MaterialPair, 24> pairs = {{
    {"steel", "steel", 0.74F},  // S
    {"aluminium", "steel", 0.61F},  // S
    {"copper", "steel", 0.53F},  // S
    {"brass", "steel", 0.51F},  // A
    {"steel", "teflon", 0.04F},  // S
    {"teflon", "teflon", 0.04F},  // S
    {"cast iron", "cast iron", 1.10F},  // A
    {"aluminium", "aluminium", 1.05F},  // A
    {"copper", "copper", 1.0F},  // A
    {"glass", "glass", 0.94F},  // S
    {"glass", "nickel", 0.78F},  // A
    {"wood", "wood", 0.4F},  // G
    {"leather", "wood", 0.61F},  // A
    {"cast iron", "leather", 0.6F},  // A
    {"nylon", "nylon", 0.2F},  // A
    {"nylon", "steel", 0.4F},  // A
    {"plexiglass", "plexiglass", 0.8F},  // A
    {"plexiglass", "steel", 0.45F},  // A
    {"polystyrene", "polystyrene", 0.5F},  // A
    {"polystyrene", "steel", 0.35F},  // A
    {"concrete", "rubber", 1.0F},  // S
    {"concrete", "gum", 1.0F},  // S
    {"rubber", "rubber", 1.16F},  // A
    {"gum", "gum", 1.16F},  // A
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

}  // namespace Varo::Model
