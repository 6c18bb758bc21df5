#include "editing/CorrectInputOutput.h"

#include "sim/clsGraph2.h"

namespace veltrix {

bool CorrectInputOutput(const Board& board, MessageBox& messages) {
    const std::string report = clsGraph2().Check(board.Lines, board.Snaps);
    if (report.empty())
        return true;
    messages.Show("Je begaat een fout: Je hebt 2 of meer uitgangen aan elkaar verbonden.\r\n"
                  "Het gaat om de uitgangen:\r\n\r\n" +
                      report,
                  "Veltrix", Buttons::Ok);
    return false;
}

} // namespace veltrix
