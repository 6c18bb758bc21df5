#pragma once

#include "board/SocketName.h"

#include <array>

namespace veltrix {

/// Four outputs that give a number in binary, the lowest bit first.
using FourBits = std::array<SocketName, 4>;

/// The names that the simulation itself speaks of, looked up once.
struct Sockets {
    static const Sockets& Get() {
        static const Sockets names;
        return names;
    }

    SocketName Sensor1Uit = "Sensor 1 Uit Geel";
    SocketName Sensor2Uit = "Sensor 2 Uit Geel";
    SocketName GeluidsSensorUit = "Geluids Sensor Uit Geel";
    SocketName Drukknop1Uit = "Drukknop 1 Uit Geel";
    SocketName Drukknop2Uit = "Drukknop 2 Uit Geel";
    SocketName VarSpanningUit = "Var. Spanning Uit Geel";
    SocketName PulsGeneratorUit = "Puls Generator Uit Geel";

    SocketName TransistorIn = "Transistor In";
    SocketName TransistorUit = "Transistor Uit";
    SocketName EnIngang1 = "EN-poort Ingang 1";
    SocketName EnIngang2 = "EN-poort Ingang 2";
    SocketName EnUit = "EN-poort Uit";
    SocketName OfIngang1 = "OF-poort Ingang 1";
    SocketName OfIngang2 = "OF-poort Ingang 2";
    SocketName OfUit = "OF-poort Uit";
    SocketName GeheugenSet = "Geheugen Set (In)";
    SocketName GeheugenReset = "Geheugen Reset (In)";
    SocketName GeheugenUit = "Geheugen Uit";
    SocketName InvertorIngang = "Invertor Ingang";
    SocketName InvertorUitgang = "Invertor Uitgang";
    SocketName ComparatorIn = "Comparator In";
    SocketName ComparatorUit = "Comparator Uit";

    SocketName RelaisControle = "Relais Controle (In)";
    SocketName RelaisIngang1 = "Relais Ingang 1 (in/uit)";
    SocketName RelaisIngang2 = "Relais Ingang 2 (in/uit)";
    SocketName RelaisUitgang1 = "Relais Uitgang 1 (in/uit)";
    SocketName RelaisUitgang2 = "Relais Uitgang 2 (in/uit)";

    SocketName TellerPulsen = "Pulsenteller Tel pulsen (In)";
    SocketName TellerAanUit = "Pulsenteller Teller aan/uit (In)";
    SocketName TellerReset = "Pulsenteller Reset (In)";
    FourBits TellerUitgang{"Pulsenteller Uitgang 1", "Pulsenteller Uitgang 2",
                           "Pulsenteller Uitgang 4", "Pulsenteller Uitgang 8"};
    /// No socket of the board: marks the counter as done for this run.
    SocketName TellerUitgangen = "Pulsenteller Uitgang Collection";

    SocketName AdIn = "AD-omzetter In";
    FourBits AdUitgang{"AD-omzetter Uitgang 1", "AD-omzetter Uitgang 2", "AD-omzetter Uitgang 4",
                       "AD-omzetter Uitgang 8"};

    std::array<SocketName, 4> Leds{"LED 1 Ingang", "LED 2 Ingang", "LED 3 Ingang", "LED 4 Ingang"};
    SocketName Zoemer = "Zoemer";

    SocketName ComparatorRegelaar = "Comparator Regelaar";
    SocketName VarSpanningRegelaar = "Var. Spanning Regelaar";
    SocketName PulsGeneratorRegelaar = "Puls Generator Regelaar";
};

} // namespace veltrix
