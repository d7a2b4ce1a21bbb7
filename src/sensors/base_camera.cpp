#include "sim/base_camera.hpp"

namespace Sim {

BaseCamera::BaseCamera() = default;

BaseCamera::~BaseCamera() = default;

}  // namespace Sim
