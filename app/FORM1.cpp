#include "app/FORM1.h"

namespace veltrix {

FORM1::FORM1(const Desktop& desktop)
    : UCWaveIn1(desktop.TheWaveIn, desktop.TheSettings),
      desktop_(desktop),
      undo_(board_, desktop.TheUndoMenu, desktop.Messages),
      interaction_(board_, cursor_, undo_, desktop.ModeMenu, desktop.Messages),
      files_(board_, undo_, desktop.Window, desktop.CommonDialog1, desktop.Messages, *this),
      tick_({Pictor1, board_, graph_, desktop.TheClock, desktop.ThePointer, UCWaveIn1,
             desktop.Player, desktop.Timer1, interaction_}),
      webPages_(desktop.TheShell, desktop.Messages),
      help_(desktop.HelpWindows, desktop.Messages, webPages_, desktop.TheProgram.Folder()) {}

void FORM1::Form_Load() {
    desktop_.Window.ShowSplash();
    if (!Pictor1.Start(desktop_.TheProgram.Folder(), Board::Width, Board::Height,
                       desktop_.Window.Scale(), desktop_.TheLog)) {
        FatalError("Can't load Pictor");
        return;
    }
    Pictor1.AddListener(interaction_);
    desktop_.Window.SetCaption(ProgramTitle());
    board_.Constructor(Pictor1);
    graph_.Constructor(board_.Display);
    cursor_.Constructor(Pictor1);
    mnuNieuweVerbindingen_Click();
    desktop_.Window.SetSaveEnabled(false);
    Pictor1.Refresh();
    desktop_.Window.UnloadSplash();
    desktop_.Window.Show();
    desktop_.TheFileTypes.RegisterFileType();

    try {
        files_.OpenFromCommandLine(desktop_.TheProgram.CommandLine());
    } catch (...) {
        // A document that cannot be read must not keep the board from running. Recording it may
        // fail as well, when it is too large for an undo state.
        desktop_.Timer1.SetEnabled(true);
        Undo_AddThisState();
        throw;
    }
    desktop_.Timer1.SetEnabled(true);
}

void FORM1::mnuGeluidSensor_Click() {
    frmWaveInputs dialog(desktop_.WaveInputs.Create(), desktop_.Programs);
    dialog.Constructor(UCWaveIn1);
    dialog.Show();
}

void FORM1::mnuHelpInfo_Click() {
    frmAbout(desktop_.AboutWindows.Create()).Show();
}

void FORM1::mnuUitleg_Click() {
    help_.Show(); // makes the browser, which has to be there before it can go anywhere
    help_.Constructor("NL");
}

void FORM1::mnuHelpAbout_Click() {
    const std::string address = WebAddress;
    desktop_.Messages.Show("Op internet staat hulp en meer informatie.\r\n"
                           "De computer probeert naar de volgende website gaan:\r\n" +
                               address + "\r\n",
                           "Veltrix Simulator", Buttons::Ok, Icon::Information);
    OpenWebPage(address);
}

void FORM1::FatalError(const std::string& msg) {
    desktop_.Messages.Show(msg, "Error", Buttons::Ok);
    end(1);
}

void FORM1::ClearObjects() {
    board_.LooseWire.reset();
    board_.Lines = {};
    end(0);
}

void FORM1::end(int status) {
    ended_ = true;
    desktop_.Timer1.SetEnabled(false);
    desktop_.TheProgram.End(status);
}

} // namespace veltrix
