#include "system/output_reader.h"

bool outputHasAReader()
{
    return true;
}
