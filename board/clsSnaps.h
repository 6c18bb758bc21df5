#pragma once

#include "board/SocketName.h"
#include "board/Types.h"

#include <array>
#include <cstdint>
#include <string>

namespace veltrix {

/// What a snap is to the logic of the board; the values are those of `GetSoortbyName`.
enum class Soort : std::int32_t {
    None = 0,   ///< an operable control, or the black terminal of the variable voltage
    Input = 1,  ///< an input socket of a module
    Output = 2, ///< an output socket of a module, or a sensor's area
    Contact = 3 ///< a relay contact, which may act as input or as output
};

/// The catalogue of everything on the board that a pupil can act on: sockets, push buttons, knobs,
/// the reset button and the sensors' areas. It is filled when it is made and never changes.
/// Names are compared letter by letter, upper and lower case apart.
class clsSnaps {
public:
    clsSnaps();

    /// Appends a snap whose hit zone reaches `Radius` (rounded to a whole number) to each side.
    /// Throws std::out_of_range when 100 snaps are there already.
    void AddSnap(std::int32_t x, std::int32_t y, float Radius, const std::string& naam = {},
                 Bool16 Connectable = false, Bool16 Changeable = false, std::int32_t soort = 0);

    [[nodiscard]] std::int32_t GetSnapCount() const noexcept { return count_; }

    /// The name at position `Index`, counted from 1; empty from the count + 1 to 100. Throws
    /// std::out_of_range for a position outside 0 to 100.
    [[nodiscard]] std::string GetSnapItemName(std::int32_t Index) const;

    /// The centre of a snap in board pixels; 0 for a name that no snap has.
    [[nodiscard]] std::int32_t GetXbyName(const SocketName& naam) const noexcept;
    [[nodiscard]] std::int32_t GetYbyName(const SocketName& naam) const noexcept;

    /// -1 when a wire may end on the snap, 0 when not or when no snap has that name.
    [[nodiscard]] std::int32_t GetConnectablebyName(const SocketName& naam) const noexcept;

    /// The kind (see `Soort`); 0 for a name that no snap has.
    [[nodiscard]] std::int32_t GetSoortbyName(const SocketName& naam) const noexcept;

    /// The first snap, in catalogue order, whose zone holds the board position; empty when none
    /// does. A zone is an open square: a point exactly Radius away is outside. Throws
    /// std::overflow_error when a snap's edge lies outside the 32-bit range.
    [[nodiscard]] std::string GetSnapName(std::int32_t x, std::int32_t y) const;

private:
    struct Snap {
        std::int32_t x = 0;
        std::int32_t y = 0;
        std::int32_t Radius = 0;
        SocketName naam;
        Bool16 Connectable;
        Bool16 Changeable;
        std::int32_t soort = 0;
    };

    [[nodiscard]] const Snap* find(const SocketName& naam) const noexcept;

    std::array<Snap, 101> snaps_; // position 0 stays empty: snaps are counted from 1
    std::int32_t count_ = 0;
};

} // namespace veltrix
