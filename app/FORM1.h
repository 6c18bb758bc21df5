#pragma once

#include "app/Desktop.h"
#include "board/PictorATL.h"
#include "document/FileCommands.h"
#include "editing/BoardInteraction.h"
#include "editing/UndoList.h"
#include "editing/clsCursor.h"
#include "instruments/Board.h"
#include "instruments/UCWaveIn.h"
#include "sim/Tick.h"
#include "sim/clsGraph.h"

#include <cstdint>
#include <string>

namespace veltrix {

/// The program: owns every long-lived object and offers every event by its name. The work is done
/// by the objects; nothing here catches what they throw (see EventEdge).
class FORM1 : private ProgramEnd {
public:
    /// Where the makers tell more of the program.
    static constexpr const char* WebAddress = "https://veltrix.example/";

    /// Nothing happens before Form_Load.
    explicit FORM1(const Desktop& desktop);

    /// Starts the program. When the surface cannot start, the program is ended with status 1 and
    /// nothing else has run. Throws when the document named on the command line cannot be read; the
    /// board runs then with what was read of it.
    void Form_Load();

    void Form_Resize() { desktop_.Window.FillWithSurface(); }

    /// The window is being closed; a `Cancel` that is not 0 afterwards keeps it open.
    void Form_Unload(std::int32_t& Cancel) { files_.Form_Unload(Cancel); }

    void Timer1_Timer() { tick_.Timer1_Timer(); }

    // The menu
    void mnuNieuw_Click() { files_.mnuNieuw_Click(); }

    void mnuOpenen_Click() { files_.mnuOpenen_Click(); }

    void mnuBewaren_Click() { files_.mnuBewaren_Click(); }

    void mnuBewarenAls_Click() { files_.mnuBewarenAls_Click(); }

    void mnuSluiten_Click() { files_.mnuSluiten_Click(); }

    void mnuUndo_Click() { undo_.mnuUndo_Click(); }

    void mnuRedo_Click() { undo_.mnuRedo_Click(); }

    void mnuGeluidSensor_Click();

    void mnuRegelen_Click() { interaction_.SetMode(EditMode::Operate); }

    void mnuNieuweVerbindingen_Click() { interaction_.SetMode(EditMode::DrawWires); }

    void mnuVerwijderVerbindingen_Click() { interaction_.SetMode(EditMode::RemoveWires); }

    void mnuHelpInfo_Click();

    void mnuUitleg_Click();

    void mnuHelpAbout_Click();

    // The mouse over the surface, in board pixels, and the keyboard
    void Pictor1_MouseDown(MouseButton button, std::int32_t x, std::int32_t y) {
        Pictor1.MouseDown(button, x, y);
    }

    void Pictor1_MouseUp(MouseButton button, std::int32_t x, std::int32_t y) {
        Pictor1.MouseUp(button, x, y);
    }

    void Pictor1_MouseMove(std::int32_t x, std::int32_t y) { Pictor1.MouseMove(x, y); }

    void Pictor1_MouseLeave() { interaction_.PointerLeft(); }

    [[nodiscard]] PointerShape Pictor1_ShapeAt(std::int32_t x, std::int32_t y) const {
        return interaction_.ShapeAt(x, y);
    }

    void Escape_Press() { interaction_.Escape(); }

    /// A document was dropped on the window.
    void Document_Drop(const std::string& path) { files_.OpenDocument(path); }

    void Undo_AddThisState() { undo_.Undo_AddThisState(); }

    [[nodiscard]] static std::string ProgramTitle() { return veltrix::ProgramTitle; }

    bool OpenWebPage(const std::string& address) { return webPages_.OpenWebPage(address); }

    /// Shows why the program cannot go on, and ends it with status 1.
    void FatalError(const std::string& msg);

    /// Releases what the board holds and ends the program.
    void ClearObjects() override;

    /// After the program was ended no event may reach it any more.
    [[nodiscard]] bool Ended() const noexcept { return ended_; }

    [[nodiscard]] const Board& TheBoard() const noexcept { return board_; }

    [[nodiscard]] const UndoList& TheUndoList() const noexcept { return undo_; }

    [[nodiscard]] const clsGraph& TheGraph() const noexcept { return graph_; }

    [[nodiscard]] const Tick& TheTick() const noexcept { return tick_; }

    PictorATL Pictor1;
    UCWaveIn UCWaveIn1;

private:
    void end(int status);

    Desktop desktop_;
    Board board_;
    clsGraph graph_;
    clsCursor cursor_;
    UndoList undo_;
    BoardInteraction interaction_;
    FileCommands files_;
    Tick tick_;
    WebPages webPages_;
    frmHelp help_;
    bool ended_ = false;
};

} // namespace veltrix
