#include "hosts/desktop/run_console.h"

int main(int argc, char** argv)
{
    return desktop::runConsole(argc, argv);
}
