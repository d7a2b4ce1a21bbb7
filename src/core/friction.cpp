#include "sim/friction.hpp"

#include "varo/model/friction.hpp"

namespace Sim {

bool frictionCoeff(std::string const& material1, std::string const& material2, float& coefficient)
{
    return Varo::Model::getCoefFriction(material1, material2, coefficient);
}

}  // namespace Sim
