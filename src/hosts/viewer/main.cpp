#include "hosts/viewer/run_viewer.h"

int main(int argc, char** argv)
{
    return viewer::runViewer(argc, argv);
}
