#include "tools/examples/Example.h"

#include "instruments/clsSensor.h"

namespace veltrix::examples {

const std::vector<Example>& AllExamples() {
    static const std::vector<Example> examples{
        {.Name = "leeg"},

        {.Name = "deurbel",
         .Wires = {{"Drukknop 1 Uit Geel", "LED 1 Ingang"}, {"Drukknop 1 Uit Geel", "Zoemer"}}},

        // The comparator is high in the light, so its opposite is what a lamp for the dark needs.
        {.Name = "schemerlamp",
         .Wires = {{"Sensor 1 Uit Geel", "Comparator In"},
                   {"Comparator Uit", "Invertor Ingang"},
                   {"Invertor Uitgang", "LED 1 Ingang"}},
         .SensorModes = {clsSensor::Pointer, clsSensor::Dark},
         .Knobs = {.Comparator = 25}},

        // Outputs 1 and 4 are high at 5, but also at 7: the counter is switched off at 5.
        {.Name = "teller",
         .Wires = {{"Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)"},
                   {"Pulsenteller Uitgang 1", "EN-poort Ingang 1"},
                   {"Pulsenteller Uitgang 4", "EN-poort Ingang 2"},
                   {"EN-poort Uit", "LED 1 Ingang"},
                   {"EN-poort Uit", "Invertor Ingang"},
                   {"Invertor Uitgang", "Pulsenteller Teller aan/uit (In)"},
                   {"Drukknop 1 Uit Geel", "Pulsenteller Reset (In)"}},
         .Knobs = {.PulseGenerator = 10}},

        // A burglar's torch is bright, but hardly ever exactly 5 V: the comparator makes it high.
        {.Name = "alarm",
         .Wires = {{"Sensor 1 Uit Geel", "Comparator In"},
                   {"Comparator Uit", "Geheugen Set (In)"},
                   {"Drukknop 2 Uit Geel", "Geheugen Reset (In)"},
                   {"Geheugen Uit", "LED 1 Ingang"},
                   {"Geheugen Uit", "Zoemer"}},
         .SensorModes = {clsSensor::Pointer, clsSensor::Dark},
         .Knobs = {.Comparator = 40}},

        // The button need not stay pressed: the memory cell remembers the visitor.
        {.Name = "deurbel-geheugen",
         .Wires = {{"Drukknop 1 Uit Geel", "Zoemer"},
                   {"Drukknop 1 Uit Geel", "Geheugen Set (In)"},
                   {"Drukknop 2 Uit Geel", "Geheugen Reset (In)"},
                   {"Geheugen Uit", "LED 1 Ingang"}}},

        // The slow wave of sensor 2 plays the temperature of the room.
        {.Name = "thermostaat",
         .Wires = {{"Sensor 2 Uit Geel", "Comparator In"},
                   {"Comparator Uit", "LED 2 Ingang"},
                   {"Comparator Uit", "Invertor Ingang"},
                   {"Invertor Uitgang", "LED 1 Ingang"}},
         .SensorModes = {clsSensor::Dark, clsSensor::Wave},
         .Knobs = {.Comparator = 30}},

        // Nine places. A full garage switches its counter off, or the tenth car would empty it.
        {.Name = "parkeergarage",
         .Wires = {{"Drukknop 1 Uit Geel", "Pulsenteller Tel pulsen (In)"},
                   {"Pulsenteller Uitgang 1", "EN-poort Ingang 1"},
                   {"Pulsenteller Uitgang 8", "EN-poort Ingang 2"},
                   {"EN-poort Uit", "LED 1 Ingang"},
                   {"EN-poort Uit", "Invertor Ingang"},
                   {"Invertor Uitgang", "LED 2 Ingang"},
                   {"Invertor Uitgang", "Pulsenteller Teller aan/uit (In)"},
                   {"Drukknop 2 Uit Geel", "Pulsenteller Reset (In)"}}},

        {.Name = "knipperlicht",
         .Wires = {{"Puls Generator Uit Geel", "LED 1 Ingang"},
                   {"Puls Generator Uit Geel", "Invertor Ingang"},
                   {"Invertor Uitgang", "LED 2 Ingang"}},
         .Knobs = {.PulseGenerator = 4}},

        // Green from 0 to 3, with amber beside it at 2 and 3, red from 4 to 9.
        {.Name = "verkeerslicht",
         .Wires = {{"Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)"},
                   {"Pulsenteller Uitgang 4", "OF-poort Ingang 1"},
                   {"Pulsenteller Uitgang 8", "OF-poort Ingang 2"},
                   {"OF-poort Uit", "LED 1 Ingang"},
                   {"OF-poort Uit", "Invertor Ingang"},
                   {"Invertor Uitgang", "LED 3 Ingang"},
                   {"Invertor Uitgang", "EN-poort Ingang 1"},
                   {"Pulsenteller Uitgang 2", "EN-poort Ingang 2"},
                   {"EN-poort Uit", "LED 2 Ingang"}},
         .Knobs = {.PulseGenerator = 3}},

        {.Name = "klaplicht",
         .Wires = {{"Geluids Sensor Uit Geel", "Comparator In"},
                   {"Comparator Uit", "Geheugen Set (In)"},
                   {"Drukknop 1 Uit Geel", "Geheugen Reset (In)"},
                   {"Geheugen Uit", "LED 1 Ingang"}},
         .Knobs = {.Comparator = 30}},

        // The transistor, which inverts, holds the counter at 0 while the door is shut; the buzzer
        // sounds from 4 on and the counter stops at 8, so that it never starts again by itself.
        {.Name = "koelkast",
         .Wires = {{"Sensor 1 Uit Geel", "Comparator In"},
                   {"Comparator Uit", "LED 1 Ingang"},
                   {"Comparator Uit", "Transistor In"},
                   {"Transistor Uit", "Pulsenteller Reset (In)"},
                   {"Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)"},
                   {"Pulsenteller Uitgang 4", "OF-poort Ingang 1"},
                   {"Pulsenteller Uitgang 8", "OF-poort Ingang 2"},
                   {"OF-poort Uit", "Zoemer"},
                   {"Pulsenteller Uitgang 8", "Invertor Ingang"},
                   {"Invertor Uitgang", "Pulsenteller Teller aan/uit (In)"}},
         .SensorModes = {clsSensor::Pointer, clsSensor::Dark},
         .Knobs = {.Comparator = 25, .PulseGenerator = 5}},

        {.Name = "niveaumeter",
         .Wires = {{"Var. Spanning Uit Geel", "AD-omzetter In"},
                   {"AD-omzetter Uitgang 8", "LED 1 Ingang"},
                   {"AD-omzetter Uitgang 4", "LED 2 Ingang"},
                   {"AD-omzetter Uitgang 2", "LED 3 Ingang"},
                   {"AD-omzetter Uitgang 1", "LED 4 Ingang"}},
         .Knobs = {.VariableVoltage = 25}},

        // The first player's button starts the count, the second one's stops it.
        {.Name = "reactiespel",
         .Wires = {{"Drukknop 1 Uit Geel", "Geheugen Set (In)"},
                   {"Drukknop 2 Uit Geel", "Geheugen Reset (In)"},
                   {"Geheugen Uit", "LED 1 Ingang"},
                   {"Geheugen Uit", "Pulsenteller Teller aan/uit (In)"},
                   {"Puls Generator Uit Geel", "Pulsenteller Tel pulsen (In)"}},
         .Knobs = {.PulseGenerator = 20}},

        {.Name = "relais",
         .Wires = {{"Drukknop 1 Uit Geel", "Relais Controle (In)"},
                   {"Drukknop 2 Uit Geel", "Relais Ingang 1 (in/uit)"},
                   {"Relais Uitgang 1 (in/uit)", "LED 1 Ingang"},
                   {"Puls Generator Uit Geel", "Relais Ingang 2 (in/uit)"},
                   {"Relais Uitgang 2 (in/uit)", "LED 2 Ingang"}},
         .Knobs = {.PulseGenerator = 10}},

        // Open at exactly three presses while button 2 is held: a fourth press resets the counter,
        // so seven, which has the same two outputs high, is never reached.
        {.Name = "cijferslot",
         .Wires = {{"Drukknop 1 Uit Geel", "Pulsenteller Tel pulsen (In)"},
                   {"Drukknop 2 Uit Geel", "Relais Controle (In)"},
                   {"Pulsenteller Uitgang 1", "EN-poort Ingang 1"},
                   {"Pulsenteller Uitgang 2", "Relais Ingang 1 (in/uit)"},
                   {"Relais Uitgang 1 (in/uit)", "EN-poort Ingang 2"},
                   {"EN-poort Uit", "Geheugen Set (In)"},
                   {"Drukknop 1 Uit Geel", "Geheugen Reset (In)"},
                   {"Geheugen Uit", "LED 1 Ingang"},
                   {"Pulsenteller Uitgang 4", "Pulsenteller Reset (In)"}}},
    };
    return examples;
}

} // namespace veltrix::examples
