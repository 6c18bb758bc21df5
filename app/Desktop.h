#pragma once

#include "app/FileTypes.h"
#include "app/Shell.h"
#include "app/frmAbout.h"
#include "app/frmHelp.h"
#include "app/frmWaveInputs.h"
#include "app/modControlPanel.h"
#include "board/Log.h"
#include "document/Dialogs.h"
#include "document/FileCommands.h"
#include "editing/BoardInteraction.h"
#include "editing/UndoList.h"
#include "instruments/Settings.h"
#include "instruments/UCWaveIn.h"
#include "sim/Tick.h"

#include <filesystem>
#include <string>

namespace veltrix {

/// The main window and the splash window before it.
class MainWindow : public DocumentWindow {
public:
    /// Shows the splash and lets it paint once.
    virtual void ShowSplash() = 0;
    virtual void UnloadSplash() = 0;

    /// How many pixels of the screen one board pixel is wide.
    [[nodiscard]] virtual double Scale() const = 0;

    virtual void Show() = 0;

    /// Puts the surface at the inner top left corner and makes it as large as the inside.
    virtual void FillWithSurface() = 0;
};

/// The running program.
class Program {
public:
    virtual ~Program() = default;

    /// The folder that holds the program and its data files.
    [[nodiscard]] virtual const std::filesystem::path& Folder() const = 0;

    /// The argument text of the command line, UTF-8; empty when there is none.
    [[nodiscard]] virtual std::string CommandLine() const = 0;

    /// Ends the program without further events or questions. The caller returns at once.
    virtual void End(int status) = 0;
};

/// Everything that the program asks of the desktop it runs on. All of it must outlive the program.
struct Desktop {
    MainWindow& Window;
    Program& TheProgram;
    UndoMenu& TheUndoMenu;
    EditModeMenu& ModeMenu;
    MessageBox& Messages;
    FileDialog& CommonDialog1;
    TickTimer& Timer1;
    Clock& TheClock;
    Pointer& ThePointer;
    UCWaveIn::Captures TheWaveIn;
    Settings& TheSettings;
    WaveInputsViews& WaveInputs;
    ProgramStart& Programs;
    AboutViews& AboutWindows;
    HelpViews& HelpWindows;
    Shell& TheShell;
    FileTypes& TheFileTypes;
    SoundPlayer& Player;
    Log& TheLog;
};

} // namespace veltrix
