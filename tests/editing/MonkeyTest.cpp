#include "document/BoardDocument.h"
#include "tests/support/MemoryDesktop.h"
#include "tests/support/Pictures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace veltrix::test {
namespace {

/// A user without a plan. Every run is named by its seed; VELTRIX_MONKEY_SEED replays one.
class Monkey {
public:
    explicit Monkey(std::uint32_t seed) : random_(seed) { desktop_.Start(); }

    void Act() {
        switch (pick(24)) {
        case 0:
            command(&FORM1::mnuUndo_Click, desktop_.menu.undoEnabled);
            break;
        case 1:
            command(&FORM1::mnuRedo_Click, desktop_.menu.redoEnabled);
            break;
        case 2:
            command(&FORM1::mnuRegelen_Click, true);
            break;
        case 3:
            command(&FORM1::mnuVerwijderVerbindingen_Click, true);
            break;
        case 4:
        case 5:
            command(&FORM1::mnuNieuweVerbindingen_Click, true);
            break;
        case 6:
            if (pick(20) == 0)
                command(&FORM1::mnuNieuw_Click, true);
            break;
        case 7:
            desktop_.edge.Quietly([](FORM1& form) { form.Escape_Press(); });
            break;
        case 8:
        case 9:
        case 10:
            desktop_.RunTicks(pick(3) + 1);
            break;
        case 11:
            click(somewhere(), MouseButton::Right);
            break;
        case 12:
            click(somewhere(), MouseButton::Left);
            break;
        default:
            click(snap(), MouseButton::Left);
            break;
        }
    }

    /// What must hold whatever was done.
    void ExpectWhole() {
        const UndoList& undo = desktop_.form.TheUndoList();
        ASSERT_GE(undo.Position(), 1);
        ASSERT_LE(undo.Position(), undo.Count());
        ASSERT_EQ(desktop_.menu.undoEnabled, undo.Position() >= 2);
        ASSERT_EQ(desktop_.menu.redoEnabled, undo.Position() < undo.Count());
        ASSERT_TRUE(desktop_.notice.shown.empty()) << desktop_.notice.shown.front();
        for (const auto& line : desktop_.form.TheBoard().Lines) {
            const double dx = line->X2() - line->X1();
            const double dy = line->Y2() - line->Y1();
            const auto beads = static_cast<std::int32_t>(std::sqrt(dx * dx + dy * dy) / 10);
            ASSERT_EQ(desktop_.form.Pictor1.CountInGroup(line->GroupLID()), beads)
                << line->naam1.Text() << " - " << line->naam2.Text();
        }
    }

    /// From the first undo state to the last and back: the same documents both ways. The board
    /// itself may be ahead of its undo state, since not every change of a level records one.
    void ExpectTheSameDocumentsBackAndForth() {
        const UndoList& undo = desktop_.form.TheUndoList();
        while (undo.Position() > 1)
            desktop_.form.mnuUndo_Click();
        std::vector<clsKorvelRWRam::Block> forth;
        while (undo.Position() < undo.Count()) {
            desktop_.form.mnuRedo_Click();
            forth.push_back(document());
        }
        while (undo.Position() > 2) {
            desktop_.form.mnuUndo_Click();
            const auto index = static_cast<std::size_t>(undo.Position()) - 2;
            ASSERT_TRUE(document() == forth[index]) << "undo state " << undo.Position();
        }
    }

private:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

    Point somewhere() { return {pick(Board::Width + 20) - 10, pick(Board::Height + 20) - 10}; }

    Point snap() {
        const clsSnaps& snaps = desktop_.form.TheBoard().Snaps;
        const std::string naam = snaps.GetSnapItemName(pick(snaps.GetSnapCount()) + 1);
        return {snaps.GetXbyName(naam) + pick(7) - 3, snaps.GetYbyName(naam) + pick(7) - 3};
    }

    void command(void (FORM1::*handler)(), bool enabled) {
        if (enabled)
            desktop_.edge.Command([handler](FORM1& form) { (form.*handler)(); });
    }

    void click(Point to, MouseButton button) {
        desktop_.pointer.position = to;
        desktop_.edge.Quietly([&](FORM1& form) { form.Pictor1_MouseMove(to.x, to.y); });
        desktop_.edge.Quietly([&](FORM1& form) { form.Pictor1_MouseDown(button, to.x, to.y); });
        if (pick(8) != 0)
            desktop_.edge.Quietly([&](FORM1& form) { form.Pictor1_MouseUp(button, to.x, to.y); });
    }

    clsKorvelRWRam::Block document() {
        clsKorvelRWRam stream;
        WriteTo(desktop_.form.TheBoard(), stream);
        return stream.Data();
    }

    MemoryDesktop desktop_{boardPictures()};
    std::mt19937 random_;
};

void letLoose(std::uint32_t seed, int actions) {
    SCOPED_TRACE("replay with VELTRIX_MONKEY_SEED=" + std::to_string(seed));
    Monkey monkey(seed);
    for (int i = 0; i < actions; ++i) {
        monkey.Act();
        ASSERT_NO_FATAL_FAILURE(monkey.ExpectWhole()) << "after action " << i;
    }
    monkey.ExpectTheSameDocumentsBackAndForth();
}

TEST(Monkey, WhateverIsClickedTheBoardStaysWholeAndUndoReplaysIt) {
    if (const char* seed = std::getenv("VELTRIX_MONKEY_SEED")) {
        letLoose(static_cast<std::uint32_t>(std::stoul(seed)), 400);
        return;
    }
    for (std::uint32_t seed = 1; seed <= 55 && !HasFatalFailure(); ++seed)
        letLoose(seed, 400);
}

} // namespace
} // namespace veltrix::test
