#include "cli/Platform.h"
#include "cli/Program.h"

#include <iostream>

int main(int argc, char** argv) {
    using namespace veltrix::cli;
    return RunProgram(Arguments(argc, argv), ApplicationFolder(), std::cout, std::cerr);
}
