#pragma once

#include "board/Collection.h"
#include "board/SocketName.h"
#include "board/clsLine.h"
#include "sim/Sockets.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <vector>

namespace veltrix {

class clsDisplay;

/// Computes, once a tick, the level of every socket that the wires reach.
///
/// A table of sockets with known levels grows from the sources that the caller adds: wires copy a
/// known level to an unknown end, and a module adds its outputs as soon as every connected input is
/// known; the relay alone does not wait for its coil. The run ends when a whole pass adds nothing.
/// Levels are tenths of a volt; a socket is high at exactly 50. The memory cell and the counter's
/// last pulse level outlive a run; the count itself is the display's.
class clsGraph {
public:
    /// Keeps the counter's display, which must outlive the evaluator. Comes before Run.
    void Constructor(clsDisplay& theDisplay) noexcept { display_ = &theDisplay; }

    /// Forgets all known levels; the memory cell and the last pulse level stay.
    void Clear() noexcept;

    /// Makes a level known. A name that is added twice keeps its first level for every look-up.
    /// Throws std::out_of_range when 100 levels are known already.
    void AddPunt(const SocketName& naam, std::int32_t Value);

    /// Makes the levels of four outputs known that give the lowest bits of a number in binary.
    void AddBits(const FourBits& outputs, std::int32_t number);

    /// The level of a socket, or `standard` when the run has not reached it.
    [[nodiscard]] std::int32_t GetPuntValueByName(const SocketName& naam,
                                                  std::int32_t standard) const noexcept;

    /// The level of a socket, if the run has reached it.
    [[nodiscard]] std::optional<std::int32_t> Level(const SocketName& naam) const noexcept;

    /// Whether the run has reached a socket with exactly 50.
    [[nodiscard]] bool IsHigh(const SocketName& naam) const noexcept;

    /// Evaluates the circuit. Every wire's `done` must be false; a wire that carries a level ends
    /// up done and coloured by it. The result is always false and means nothing. Throws what
    /// AddPunt, clsLine::SetColor and clsDisplay throw, and std::overflow_error for levels far out
    /// of range.
    bool Run(const Collection<clsLine>& lines);

    /// The comparator's reference level.
    void SetComparatorValue(std::int32_t Value) noexcept { comparatorValue_ = Value; }

private:
    using Levels = std::initializer_list<std::int32_t>;

    /// What is known of a name, at the place of its number, so that a look-up need not search. A
    /// note is valid while its stamp is that of the current table or run.
    struct Note {
        std::uint64_t knownIn = 0;
        std::uint64_t connectedIn = 0;
        std::int32_t value = 0;
    };

    [[nodiscard]] bool PuntExists(const SocketName& naam) const noexcept;
    [[nodiscard]] bool IsConnected(const SocketName& naam) const noexcept;
    [[nodiscard]] bool ready(const SocketName& naam) const noexcept;
    [[nodiscard]] std::optional<std::int32_t> wiredLevel(const SocketName& naam) const noexcept;
    void noteConnections(const Collection<clsLine>& lines);
    Note& noteOf(const SocketName& naam);
    [[nodiscard]] const Note* findNote(const SocketName& naam) const noexcept;

    bool PropagateWires(const Collection<clsLine>& lines);
    bool EvaluateModules();
    bool orGate();
    bool andGate();
    bool memoryCell();
    bool invertor();
    bool comparator();
    bool transistor();
    bool relayContact(const SocketName& from, const SocketName& to);
    bool pulseCounter();
    bool adConverter();

    static std::int32_t MinOf(Levels values) noexcept;

    // The names in the table; their levels stand in the notes. Position 0 stays empty: levels are
    // counted from 1.
    std::array<SocketName, 101> punten_;
    std::int32_t count_ = 0;
    std::int32_t memoryLevel_ = 0;
    std::int32_t comparatorValue_ = 0;
    clsDisplay* display_ = nullptr;
    std::int32_t lastPulseLevel_ = 0;

    std::vector<Note> notes_; // by the number of the name
    std::uint64_t table_ = 1;
    std::uint64_t run_ = 0;
};

} // namespace veltrix
