// The desktop program: kelvo [--folder DIR] [WORD].

#include "desktop/run_program.h"

int main(int argc, char** argv)
{
    return desktop::runProgram(argc, argv);
}
