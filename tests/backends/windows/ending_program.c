/* A program that ends at once: in failure where the variable is set. */
#include <stdlib.h>

int main(void)
{
    return getenv("ORVAN_TEST_FAILS") != NULL ? 3 : 0;
}
