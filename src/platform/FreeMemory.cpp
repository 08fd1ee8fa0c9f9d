#include "platform/FreeMemory.h"

#include <cstdlib>
#ifdef __GLIBC__
#include <malloc.h>
#endif

void Public_Function::GiveBackFreeMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}
