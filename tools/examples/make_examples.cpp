// Writes the boards of examples/:
//
//     make_examples FOLDER

#include "tools/examples/Example.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_examples FOLDER\n";
        return 2;
    }
    try {
        for (const veltrix::examples::Example& example : veltrix::examples::AllExamples())
            veltrix::examples::WriteExample(example, argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "make_examples: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
