#pragma once

#include <cstdint>

namespace veltrix {

class PictorATL;

/// Takes a sprite off the surface and sets its number to 0; does nothing when it is 0 already.
void RemoveSprite(PictorATL& mag, std::int32_t& sprite);

} // namespace veltrix
