#include "instruments/RemoveSprite.h"

#include "board/PictorATL.h"

#include <utility>

namespace veltrix {

void RemoveSprite(PictorATL& mag, std::int32_t& sprite) {
    if (sprite == 0)
        return;
    const std::int32_t gone = std::exchange(sprite, 0);
    mag.SetSpriteState(gone, spriteState::Leaving);
    mag.RedrawSprite(gone);
    mag.DeleteSprite(gone);
}

} // namespace veltrix
