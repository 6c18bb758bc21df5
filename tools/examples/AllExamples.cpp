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
    };
    return examples;
}

} // namespace veltrix::examples
