#include "instruments/Board.h"

namespace veltrix {

namespace {

constexpr std::array<Point, 4> ledCorners{{{373, 27}, {373, 61}, {373, 95}, {373, 130}}};
// A pixel apart across, as the two push buttons are printed.
constexpr std::array<Point, 2> pushButtonCorners{{{14, 164}, {13, 198}}};
constexpr std::array<Point, 2> sensorCorners{{{20, 25}, {20, 78}}};

} // namespace

void Board::Constructor(PictorATL& surface) {
    // What is made later lies above what was made before.
    surface.CreateSprite(surface.LoadBitmap("\\images2\\Bord.bmp"));
    BordLines.Constructor(surface);
    Display.Constructor(surface);
    for (std::size_t i = 0; i < LEDs.size(); ++i) {
        LEDs[i].Constructor(surface, ledCorners[i].x, ledCorners[i].y);
        LEDs[i].SetValue(false);
    }
    for (std::size_t i = 0; i < PushButtons.size(); ++i) {
        PushButtons[i].Constructor(surface, pushButtonCorners[i].x, pushButtonCorners[i].y);
        PushButtons[i].SetValue(false);
    }
    for (std::size_t i = 0; i < Sensors.size(); ++i)
        Sensors[i].Constructor(surface, sensorCorners[i].x, sensorCorners[i].y);
    Knob.Constructor(surface);
    Knob.Hide();
    Knob.SetValue(0);
}

void Board::AddLine(const SocketName& naam1, const SocketName& naam2) {
    auto line = BordLines.CreateLine();
    line->naam1 = naam1;
    line->naam2 = naam2;
    line->SetAll(Snaps.GetXbyName(naam1), Snaps.GetYbyName(naam1), Snaps.GetXbyName(naam2),
                 Snaps.GetYbyName(naam2), clsBordLines::ColorHigh);
    Lines.Add(std::move(line));
}

} // namespace veltrix
